#include "controls/oGridView.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oGridHeader.h"

#include <QCursor>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int FrameWidth = 2;
constexpr int EmptyGlyphSize = 34;

/// Whether an event selects a single row even if Shift and Ctrl mark rows: dragging without a key, since a slipped
/// click must not mark rows, and moving with Ctrl, since the new current row would have no frame.
bool goesToOneRow(const QEvent &event)
{
    if (event.type() == QEvent::MouseMove)
        return !(static_cast<const QMouseEvent &>(event).modifiers() & (Qt::ShiftModifier | Qt::ControlModifier));
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::ShiftModifier)
        && key.key() != Qt::Key_Space;
}

} // namespace

oGridView::oGridView(clsGridModel *gridModel, QWidget *parent)
    : QTableView(parent)
    , m_delegate(new oGridDelegate(this))
{
    setHorizontalHeader(new oGridHeader(this));
    setModel(gridModel);
    setItemDelegate(m_delegate);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex &now, const QModelIndex &before) {
            m_delegate->setKeyRow(now.row());
            updateRow(before.row());
            updateRow(now.row());
        });
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(FrameWidth);
    auto *end = new oGridHeaderEnd(this);
    end->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    addScrollBarWidget(end, Qt::AlignTop);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    takeFonts();
}

void oGridView::takeFonts()
{
    m_delegate->takeFonts(static_cast<const clsGridModel *>(model())->columns());
    const int height = mdGridRowHeight();
    // The smallest height first: the style's default may be larger than a row.
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void oGridView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void oGridView::setEmptyGlyph(Glyph glyph)
{
    m_emptyGlyph = glyph;
    viewport()->update();
}

int oGridView::selectedRow() const
{
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return -1;
    return selectionModel()->isSelected(currentIndex()) ? currentIndex().row() : selection.first().top();
}

void oGridView::selectOnly(int row, int column)
{
    if (row < 0 || row >= model()->rowCount()) {
        selectionModel()->clear();
        return;
    }
    const auto &gridModel = *static_cast<const clsGridModel *>(model());
    if (column < 0)
        column = currentIndex().isValid() ? currentIndex().column() : gridModel.firstShownColumn();
    m_anchor = gridModel.index(row, column);
    selectionModel()->setCurrentIndex(m_anchor, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void oGridView::setMarksRows(bool marksRows)
{
    m_marksRows = marksRows;
    setSelectionMode(marksRows ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void oGridView::alsoSelect(const std::vector<int> &rows)
{
    const int last = model()->columnCount() - 1;
    QItemSelection selection;
    for (size_t from = 0, to = 0; from < rows.size(); from = to) {
        while (++to < rows.size() && rows[to] == rows[to - 1] + 1) { }
        selection.select(model()->index(rows[from], 0), model()->index(rows[to - 1], last));
    }
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

bool oGridView::event(QEvent *event)
{
    const bool result = QTableView::event(event);
    if (event->type() == QEvent::Paint)
        paintFrameOf(*this);
    return result;
}

void oGridView::setMarksCell(bool marksCell)
{
    m_delegate->setMarksCell(marksCell);
    viewport()->update();
}

/// Two pixels with the focus and one without, in the same space, so that nothing moves.
void oGridView::paintFrameOf(QTableView &table)
{
    QPainter painter(&table);
    const QRect all = table.rect();
    if (table.hasFocus()) {
        painter.fillRect(all, Theme::Purple);
        return;
    }
    painter.fillRect(all, Theme::Paper);
    painter.fillRect(QRect(0, 0, all.width(), table.horizontalHeader()->height() + 2), Theme::Canvas);
    mdPaintLine(painter, all, Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge, Theme::Grey);
}

bool oGridView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::MouseMove)
        hoverAt(static_cast<QMouseEvent *>(event)->position().toPoint());
    else if (event->type() == QEvent::Enter) // a window that opens under a resting pointer receives no movement
        hoverAt(static_cast<QEnterEvent *>(event)->position().toPoint());
    else if (event->type() == QEvent::Leave)
        hoverAt(QPoint(-1, -1));
    return QTableView::viewportEvent(event);
}

void oGridView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    // Another row is now under the resting pointer.
    if (viewport()->underMouse())
        hoverAt(viewport()->mapFromGlobal(QCursor::pos()));
}

/// A click beside the rows only sets the focus, and keeps the selected row, which the keys need.
QItemSelectionModel::SelectionFlags oGridView::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    const bool byMouse = event
        && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease
            || event->type() == QEvent::MouseMove);
    if (byMouse && !index.isValid())
        return QItemSelectionModel::NoUpdate;
    if (m_marksRows && event && goesToOneRow(*event))
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    return QTableView::selectionCommand(index, event);
}

/// The base class would select all rows from the press to the pointer, and with Shift from the row last reached by
/// hand, even if another was selected since.
void oGridView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    QRect rows = rect;
    if (m_marksRows && !(command & QItemSelectionModel::Current))
        rows.setTopLeft(rect.bottomRight());
    else if (m_marksRows && m_anchor.isValid())
        rows.setTopLeft(visualRect(m_anchor).center());
    QTableView::setSelection(rows, command);
}

void oGridView::hoverAt(const QPoint &position)
{
    const int row = rowAt(position.y());
    if (row == m_delegate->hoveredRow())
        return;
    updateRow(m_delegate->hoveredRow());
    m_delegate->setHoveredRow(row);
    updateRow(row);
}

void oGridView::updateRow(int row)
{
    if (row >= 0)
        viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

void oGridView::keyPressEvent(QKeyEvent *event)
{
    bool doDefault = true;
    emit keyDown(event->key(), event->modifiers(), &doDefault);
    if (!doDefault) {
        event->accept();
        return;
    }
    const QModelIndex before = currentIndex();
    if (takesKey(event))
        event->accept();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore(); // no row to open: leave it to the screen's default button
    else
        QTableView::keyPressEvent(event);
    if (currentIndex() != before && !(event->modifiers() & Qt::ShiftModifier))
        m_anchor = currentIndex();
}

bool oGridView::takesKey(QKeyEvent *event)
{
    const Qt::KeyboardModifiers shift = event->modifiers() & ~Qt::KeypadModifier;
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return activatesSelectedRow();
    if (shift == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        emit orderKeyPressed(key == Qt::Key_Up);
        return true;
    }
    if (key == Qt::Key_Delete) {
        if (selectedRow() >= 0)
            emit deletePressed();
        return true;
    }
    if (key == Qt::Key_Menu || (key == Qt::Key_F10 && shift == Qt::ShiftModifier)) {
        askForMenuAtSelectedRow();
        return true;
    }
    const QString text = event->text();
    if ((shift & ~Qt::ShiftModifier) || text.isEmpty() || !text[0].isPrint())
        return false;
    emit characterTyped(text);
    return true;
}

bool oGridView::activatesSelectedRow()
{
    const int row = selectedRow();
    if (row < 0)
        return false;
    emit rowActivated(model()->index(row, std::max(0, currentIndex().column())));
    return true;
}

void oGridView::askForMenuAtSelectedRow()
{
    const int row = selectedRow();
    if (row < 0)
        return;
    const QModelIndex index = model()->index(row, static_cast<const clsGridModel *>(model())->firstShownColumn());
    scrollTo(index);
    const QRect cell = visualRect(index);
    emit menuAsked(QPoint(cell.left() + Theme::Space24, cell.bottom()));
}

/// Typing a letter doesn't jump to a row: the screen handles typed text.
void oGridView::keyboardSearch(const QString &) { }

/// Home and End go to the first and the last row instead of the first and last cell.
QModelIndex oGridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (model()->rowCount() > 0 && (action == MoveHome || action == MoveEnd))
        return model()->index(action == MoveHome ? 0 : model()->rowCount() - 1, std::max(0, currentIndex().column()));
    return QTableView::moveCursor(action, modifiers);
}

/// Ctrl on a marked row unmarks it; if it was the selected one, another becomes selected.
void oGridView::mousePressEvent(QMouseEvent *event)
{
    QTableView::mousePressEvent(event);
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (pressed.isValid() && !(event->modifiers() & Qt::ShiftModifier))
        m_anchor = pressed;
    const QItemSelection selection = selectionModel()->selection();
    if (m_marksRows && !selection.isEmpty() && !selectionModel()->isSelected(currentIndex()))
        selectionModel()->setCurrentIndex(model()->index(selection.first().top(), std::max(0, currentIndex().column())),
            QItemSelectionModel::NoUpdate);
}

void oGridView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTableView::mouseDoubleClickEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid())
        emit rowActivated(index);
}

void oGridView::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    const QPoint position = event->position().toPoint();
    const bool right = event->button() == Qt::RightButton;
    if (right && !indexAt(position).isValid())
        return;
    emit mouseUp(event->button(), event->modifiers(), position);
    if (right)
        emit menuAsked(position);
}

/// The menu opens at the release of the button and by its keys. The desktop's request, sent at the press on some
/// desktops and at the release on others, would open it again.
void oGridView::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
}

void oGridView::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && selectedRow() < 0)
        selectOnly(0);
    update();
}

void oGridView::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    update();
}

void oGridView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (model()->rowCount() == 0 && !m_emptyText.isEmpty())
        paintEmptyState();
}

void oGridView::paintEmptyState()
{
    QPainter painter(viewport());
    const int size = Theme::scaled(EmptyGlyphSize);
    const QFont font = Theme::font();
    const QRect room = viewport()->rect().adjusted(Theme::Space8, 0, -Theme::Space8, 0);
    const QRect words = QFontMetrics(font).boundingRect(room, Qt::AlignHCenter | Qt::TextWordWrap, m_emptyText);
    const int height = size + Theme::Space12 + words.height();
    const int top = room.top() + std::max(0, (room.height() - height) / 2);
    mdPaintGlyph(painter, QRectF(room.center().x() - size / 2.0, top, size, size), m_emptyGlyph, Theme::EdgeOff);
    painter.setFont(font);
    painter.setPen(Theme::Ink2);
    painter.drawText(QRect(room.left(), top + size + Theme::Space12, room.width(), words.height()),
        Qt::AlignHCenter | Qt::TextWordWrap, m_emptyText);
}
