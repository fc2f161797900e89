#include "shell/oSectionList.h"

#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "shell/clsSectionDelegate.h"
#include "shell/clsSectionModel.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

oSectionList::oSectionList(QWidget *parent)
    : QListView(parent)
    , m_model(new clsSectionModel(this))
    , m_delegate(new clsSectionDelegate(this))
{
    setObjectName(QStringLiteral("oSectionList"));
    setAccessibleName(QStringLiteral("Sections"));
    setModel(m_model);
    setItemDelegate(m_delegate);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) {
        if (index.flags() & Qt::ItemIsEnabled)
            emit Opened(index.data().toString());
    });
}

void oSectionList::ShowSections(
    const QString &formType, const QSet<QString> &begun, const QHash<QString, clsScreenFindings> &findings)
{
    const QString chosen = Chosen();
    m_model->take(formType, begun, findings);
    if (Chosen() != chosen)
        Choose(chosen);
    if (hasFocus() && !currentIndex().isValid())
        choose(sectionFrom(0, 1));
}

void oSectionList::setFolded(bool folded)
{
    m_delegate->setFolded(folded);
    setVerticalScrollBarPolicy(folded ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    scheduleDelayedItemsLayout();
}

QString oSectionList::Chosen() const
{
    return currentIndex().data().toString();
}

void oSectionList::choose(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
}

void oSectionList::Choose(const QString &section)
{
    choose(m_model->index(m_model->rowOf(section)));
}

/// The first section at or after `row` in direction `step`; invalid if there is none.
QModelIndex oSectionList::sectionFrom(int row, int step) const
{
    for (; row >= 0 && row < m_model->rowCount(); row += step)
        if (const QModelIndex index = m_model->index(row); index.flags() & Qt::ItemIsEnabled)
            return index;
    return {};
}

void oSectionList::Step(bool forward)
{
    if (!currentIndex().isValid())
        return choose(forward ? sectionFrom(0, 1) : sectionFrom(m_model->rowCount() - 1, -1));
    choose(sectionFrom(currentIndex().row() + (forward ? 1 : -1), forward ? 1 : -1));
}

QModelIndex oSectionList::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_model->rowCount() - 1;
    const int row = std::max(0, currentIndex().row());
    const int page = std::max(1, viewport()->height() / std::max(1, visualRect(currentIndex()).height()) - 1);
    QModelIndex to;
    switch (action) {
    case MoveUp:
    case MovePrevious: to = sectionFrom(row - 1, -1); break;
    case MoveDown:
    case MoveNext: to = sectionFrom(row + 1, 1); break;
    case MovePageUp: to = sectionFrom(std::max(0, row - page), 1); break;
    case MovePageDown: to = sectionFrom(std::min(last, row + page), -1); break;
    case MoveHome: to = sectionFrom(0, 1); break;
    case MoveEnd: to = sectionFrom(last, -1); break;
    default: break; // nothing to the left or right
    }
    return to.isValid() ? to : currentIndex();
}

void oSectionList::keyPressEvent(QKeyEvent *event)
{
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && !(event->modifiers() & ~Qt::KeypadModifier)) {
        // A held key opens the screen only once.
        if (!event->isAutoRepeat() && currentIndex().isValid())
            emit Opened(Chosen());
        return;
    }
    QListView::keyPressEvent(event);
    // The window handles keys that the list doesn't use.
    if (event->key() == Qt::Key_Escape)
        event->ignore();
}

void oSectionList::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    choose(currentIndex().isValid() ? currentIndex() : sectionFrom(0, 1));
    viewport()->update();
}

void oSectionList::focusOutEvent(QFocusEvent *event)
{
    QListView::focusOutEvent(event);
    viewport()->update();
}

bool oSectionList::event(QEvent *event)
{
    const bool handled = QListView::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_delegate->takeFonts();
        scheduleDelayedItemsLayout();
    }
    return handled;
}

void oSectionList::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    viewport()->update(); // the frame must not scroll
}

void oSectionList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (hasFocus())
        mdPaintRing(painter, viewport()->rect(), Theme::Purple);
}
