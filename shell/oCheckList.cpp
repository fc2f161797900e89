#include "shell/oCheckList.h"

#include "controls/mdIcons.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "shell/clsCheckDelegate.h"
#include "shell/clsCheckModel.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace {

bool isGroup(const QModelIndex &index)
{
    return index.data(clsCheckModel::KindRole).toInt() == clsCheckModel::Group;
}

bool isSame(const clsFinding &left, const clsFinding &right)
{
    return left.Rule == right.Rule && left.Screen == right.Screen && left.List == right.List && left.Item == right.Item
        && left.Property == right.Property;
}

/// The position of the first of these findings; -1 if there is none.
int placeOf(const std::vector<int> &walk, const std::vector<int> &findings)
{
    if (findings.empty())
        return -1;
    const auto at = std::find(walk.begin(), walk.end(), findings.front());
    return at == walk.end() ? -1 : int(at - walk.begin());
}

} // namespace

oCheckList::oCheckList(QWidget *parent)
    : QTreeView(parent)
    , m_model(new clsCheckModel(this))
    , m_delegate(new clsCheckDelegate(this))
    , m_folded({clsFindingGroup::PutAside})
{
    setObjectName(QStringLiteral("oCheckList"));
    setAccessibleName(QStringLiteral("Findings"));
    setModel(m_model);
    setItemDelegate(m_delegate);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(0);
    setExpandsOnDoubleClick(false);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &index) { takeFolding(index, true); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &index) { takeFolding(index, false); });
}

QString oCheckList::ruleOf(const QModelIndex &index) const
{
    const std::vector<int> findings = m_model->findingsOf(index);
    return findings.empty() ? QString() : m_findings[size_t(findings.front())].Finding.Rule;
}

void oCheckList::takeFolding(const QModelIndex &index, bool open)
{
    if (m_renewing)
        return;
    const int group = index.data(clsCheckModel::GroupRole).toInt();
    if (isGroup(index) && open)
        m_folded.remove(group);
    else if (isGroup(index))
        m_folded << group;
    else if (open)
        m_unfolded << ruleOf(index);
    else
        m_unfolded.remove(ruleOf(index));
}

void oCheckList::fold()
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex group = m_model->index(row, 0);
        setExpanded(group, !m_folded.contains(group.data(clsCheckModel::GroupRole).toInt()));
        if (m_unfolded.isEmpty())
            continue;
        for (int line = 0; line < m_model->rowCount(group); ++line)
            if (const QModelIndex at = m_model->index(line, 0, group); m_model->rowCount(at) > 0)
                setExpanded(at, m_unfolded.contains(ruleOf(at)));
    }
}

void oCheckList::ShowFindings(const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups)
{
    {
        const QScopedValueRollback<bool> renewing(m_renewing, true);
        remember();
        setUpdatesEnabled(false);
        m_findings = findings;
        m_model->take(findings, groups);
        fold();
        restore();
        setUpdatesEnabled(true);
    }
    tellChosen();
}

void oCheckList::tellChosen()
{
    const int chosen = Chosen();
    m_chosenKey = chosen >= 0 && m_keyOf ? m_keyOf(chosen) : QString();
    emit ChosenChanged(chosen);
}

void oCheckList::remember()
{
    const int chosen = Chosen();
    m_chosen = chosen >= 0 ? m_findings[size_t(chosen)].Finding : clsFinding();
    const std::vector<int> walk = m_model->walk();
    m_chosenRow = currentIndex().isValid() ? placeInWalk(walk) : -1;
    m_scrolled = verticalScrollBar()->value();
}

/// The finding that was selected before, whose item may have another number or other content now. -1 if it no longer
/// exists.
int oCheckList::chosenBefore(const std::vector<int> &walk) const
{
    const auto isIt = [this](int finding) { return m_keyOf(finding) == m_chosenKey; };
    int sameNumber = -1;
    for (const int finding : walk)
        if (isSame(m_findings[size_t(finding)].Finding, m_chosen))
            sameNumber = finding;
    if (!m_keyOf || m_chosenKey.isEmpty() || (sameNumber >= 0 && isIt(sameNumber)))
        return sameNumber;
    for (const int finding : walk)
        if (m_findings[size_t(finding)].Finding.Rule == m_chosen.Rule && isIt(finding))
            return finding;
    return sameNumber;
}

/// Selects the same finding again or, if it no longer exists, the one now in its place.
void oCheckList::restore()
{
    const std::vector<int> walk = m_model->walk();
    int wanted = chosenBefore(walk);
    if (wanted < 0 && m_chosenRow >= 0 && !walk.empty())
        wanted = walk[size_t(std::min(m_chosenRow, int(walk.size()) - 1))];
    if (QModelIndex index = m_model->indexOf(wanted); index.isValid()) {
        // In a folded group, selects the visible parent.
        while (index.parent().isValid() && !isExpanded(index.parent()))
            index = index.parent();
        choose(index);
    } else if (hasFocus() && m_model->rowCount() > 0) {
        choose(m_model->index(0, 0));
    }
    verticalScrollBar()->setValue(m_scrolled);
}

int oCheckList::placeInWalk(const std::vector<int> &walk) const
{
    return placeOf(walk, m_model->findingsOf(currentIndex()));
}

/// The position of the first finding in the selected group; -1 if no group or the dismissed ones are selected.
int oCheckList::firstOfGroup(const std::vector<int> &walk) const
{
    if (!isGroup(currentIndex()))
        return -1;
    return placeOf(walk, m_model->findingsOf(m_model->index(0, 0, currentIndex())));
}

std::vector<int> oCheckList::ChosenFindings() const
{
    return m_model->findingsOf(currentIndex());
}

int oCheckList::Chosen() const
{
    const std::vector<int> findings = ChosenFindings();
    return findings.size() == 1 ? findings.front() : -1;
}

void oCheckList::choose(const QModelIndex &index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void oCheckList::Step(bool forward)
{
    const std::vector<int> walk = m_model->walk();
    if (walk.empty())
        return;
    const int at = placeInWalk(walk);
    int next = at + (forward ? 1 : -1);
    if (const int first = at < 0 ? firstOfGroup(walk) : -1; first >= 0)
        next = forward ? first : first - 1;
    else if (at < 0) // nothing selected yet
        next = forward ? 0 : int(walk.size()) - 1;
    if (next < 0 || next >= int(walk.size()))
        return;
    const QModelIndex index = m_model->indexOf(walk[size_t(next)]);
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        expand(above);
    choose(index);
    scrollTo(index);
}

void oCheckList::activate(const QModelIndex &index)
{
    const std::vector<int> findings = m_model->findingsOf(index);
    if (findings.size() == 1)
        emit Opened(findings.front());
    else if (index.isValid())
        toggle(index);
}

/// Scrolls to what has been unfolded, as much of it as fits.
void oCheckList::toggle(const QModelIndex &index)
{
    setExpanded(index, !isExpanded(index));
    if (isExpanded(index))
        scrollTo(m_model->index(m_model->rowCount(index) - 1, 0, index));
    scrollTo(index);
}

void oCheckList::PopUpMenu(const QPoint &place)
{
    const QModelIndex index = currentIndex();
    if (ChosenFindings().empty())
        return;
    const bool aside = index.data(clsCheckModel::GroupRole).toInt() == clsFindingGroup::PutAside;
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuFinding"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *open = menu->addAction(QStringLiteral("&Open"), this, [this, index] { activate(index); });
    open->setObjectName(QStringLiteral("mnuOpenFinding"));
    QAction *put = menu->addAction(aside ? QStringLiteral("&Take back") : QStringLiteral("&Not a mistake"), this,
        [this, aside] { emit AsideChanged(!aside); });
    put->setObjectName(QStringLiteral("mnuPutAside"));
    QAction *copy = menu->addAction(QStringLiteral("&Copy"), this, [index] {
        QApplication::clipboard()->setText(
            index.data().toString() + u' ' + index.data(clsCheckModel::PlaceRole).toString());
    });
    copy->setObjectName(QStringLiteral("mnuCopyFinding"));
    menu->popup(place);
}

void oCheckList::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse) {
        const QModelIndex index = indexAt(event->pos());
        if (!index.isValid())
            return;
        choose(index);
        return PopUpMenu(event->globalPos());
    }
    popUpMenuOf(currentIndex());
}

void oCheckList::popUpMenuOf(const QModelIndex &index)
{
    PopUpMenu(viewport()->mapToGlobal(m_delegate->menuSign(visualRect(index)).bottomLeft()));
}

void oCheckList::keyPressEvent(QKeyEvent *event)
{
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && !(event->modifiers() & ~Qt::KeypadModifier) && currentIndex().isValid())
        return activate(currentIndex());
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        return popUpMenuOf(currentIndex());
    QTreeView::keyPressEvent(event);
    // The window handles keys that the list doesn't use.
    if (event->key() == Qt::Key_Escape)
        event->ignore();
}

void oCheckList::mousePressEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    QTreeView::mousePressEvent(event);
    if (event->button() != Qt::LeftButton || !index.isValid())
        return;
    if (!isGroup(index) && m_delegate->menuSign(visualRect(index)).contains(place))
        popUpMenuOf(index);
    else if (m_model->rowCount(index) > 0)
        toggle(index);
}

void oCheckList::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    if (event->button() == Qt::LeftButton && m_model->findingsOf(index).size() == 1)
        activate(index);
    else // a fast second click
        mousePressEvent(event);
}

void oCheckList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    if (m_renewing)
        return;
    // The selected line is as high as its sentence.
    scheduleDelayedItemsLayout();
    executeDelayedItemsLayout();
    scrollTo(current);
    tellChosen();
}

void oCheckList::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    if (!selectionModel()->hasSelection() && m_model->rowCount() > 0) {
        // The first finding, if its group is open.
        const QModelIndex group = m_model->index(0, 0);
        choose(isExpanded(group) ? m_model->index(0, 0, group) : group);
    }
    viewport()->update();
}

bool oCheckList::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const bool isMenu
        = index.isValid() && !isGroup(index) && m_delegate->menuSign(visualRect(index)).contains(help->pos());
    QString text;
    if (isMenu)
        text = QStringLiteral("More");
    else if (m_delegate->isCut(index, viewport()->width()))
        text = mdPlainToolTip(index.data().toString());
    QToolTip::showText(help->globalPos(), text, viewport());
    return true;
}

void oCheckList::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    m_delegate->takeFonts();
    scheduleDelayedItemsLayout();
}

void oCheckList::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        scheduleDelayedItemsLayout();
}

void oCheckList::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    viewport()->update(); // the frame must not scroll
}

void oCheckList::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    QPainter painter(viewport());
    if (hasFocus())
        mdPaintRing(painter, viewport()->rect(), Theme::Purple);
}
