#include "controls/oSGrid.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdGridWidths.h"
#include "controls/mdTheme.h"
#include "controls/oGridView.h"
#include "controls/oOrderArrows.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTimer>

namespace {

/// The minimum room for the scroll bar and the frame, in pixels.
constexpr int ScrollBarRoom = 20;
/// In milliseconds.
constexpr int TypingPause = 500;

} // namespace

/// Suspends painting and signals until the grid is consistent again.
class oSGrid::clsPaintingOff {
public:
    explicit clsPaintingOff(oSGrid &grid)
        : m_grid(grid)
        , m_before(grid.m_drawing)
    {
        m_grid.m_drawing = true;
        m_grid.m_view->setUpdatesEnabled(false);
    }
    ~clsPaintingOff()
    {
        m_grid.m_drawing = m_before;
        m_grid.m_view->setUpdatesEnabled(!m_before);
    }
    clsPaintingOff(const clsPaintingOff &) = delete;

private:
    oSGrid &m_grid;
    bool m_before;
};

oSGrid::oSGrid(QWidget *parent)
    : QWidget(parent)
    , m_model(new clsGridModel(this))
    , m_view(new oGridView(m_model, this))
    , m_arrows(new oOrderArrows(this))
    , m_typing(new QTimer(this))
{
    m_view->setObjectName(QStringLiteral("sgGrid"));
    m_arrows->setObjectName(QStringLiteral("udUpDown"));
    m_arrows->hide();
    m_typing->setObjectName(QStringLiteral("tmrTimedKeyPressCapture"));
    m_typing->setSingleShot(true);
    m_typing->setInterval(TypingPause);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::Space8 - Theme::RingRoom); // the arrows have the rest at their own edge
    layout->addWidget(m_view, 1);
    layout->addWidget(m_arrows);
    setFocusProxy(m_view);
    m_view->viewport()->installEventFilter(this);
    connectView();
}

void oSGrid::connectView()
{
    connect(m_view, &oGridView::keyDown, this, &oSGrid::KeyDown);
    connect(m_view, &oGridView::mouseUp, this, &oSGrid::MouseUp);
    connect(m_view, &oGridView::deletePressed, this, &oSGrid::DeletePressed);
    connect(m_view, &oGridView::menuAsked, this, &oSGrid::popUpMenu);
    connect(m_view, &oGridView::characterTyped, this, &oSGrid::captureCharacter);
    connect(m_view, &oGridView::rowActivated, this, [this](const QModelIndex &index) {
        emit RowActivated(m_model->itemData(index.row()), index.row() + 1, index.column() + 1);
    });
    connect(m_view, &oGridView::orderKeyPressed, this, [this](bool up) { moveSelectedRow(up ? -1 : 1); });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &oSGrid::announceSelection);
    // A click that changes no mark makes a marked row the selected one.
    connect(m_view, &oGridView::pressed, this, &oSGrid::announceSelection);
    connect(m_arrows, &oOrderArrows::UpClick, this, &oSGrid::MoveUp);
    connect(m_arrows, &oOrderArrows::DownClick, this, &oSGrid::MoveDown);
    connect(m_typing, &QTimer::timeout, this, [this] { emit TimedKeyPress(m_typed); });
}

void oSGrid::setOrderable(bool orderable)
{
    m_orderable = orderable;
    m_arrows->setVisible(orderable);
}

int oSGrid::roomForArrows() const
{
    return m_orderable ? layout()->spacing() + m_arrows->sizeHint().width() : 0;
}

int oSGrid::roomBehindAmounts() const
{
    const std::vector<clsGridColumn> &columns = m_model->columns();
    if (columns.empty() || columns.back().room != clsGridRoom::Amount
        || m_view->isColumnHidden(int(columns.size()) - 1))
        return 0;
    const QScrollBar &bar = *m_view->verticalScrollBar();
    return m_view->frameWidth() + (bar.isVisible() ? bar.width() : 0) + Theme::Space8;
}

bool oSGrid::MultiSelect() const
{
    return m_view->selectionMode() == QAbstractItemView::ExtendedSelection && !m_view->marksRows();
}

void oSGrid::setMultiSelect(bool multiSelect)
{
    m_view->setSelectionMode(multiSelect ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void oSGrid::setEmptyText(const QString &text)
{
    m_view->setEmptyText(text);
    describe();
}

void oSGrid::setEmptyGlyph(Glyph glyph)
{
    m_view->setEmptyGlyph(glyph);
}

void oSGrid::setMarksCell(bool marksCell)
{
    m_view->setMarksCell(marksCell);
}

void oSGrid::ClearAll()
{
    m_columns.clear();
    m_model->setColumns({}, m_orderable);
    announceSelection();
}

void oSGrid::Clear()
{
    m_model->clearRows();
    announceSelection();
}

void oSGrid::Draw()
{
    {
        const clsPaintingOff off(*this);
        // Setting the columns removes the rows, but keeps the position of the selection.
        const int selected = SelectedRow();
        drawColumns();
        refill(selected, true);
    }
    announceSelection();
}

void oSGrid::drawColumns()
{
    m_model->setColumns(m_columns, m_orderable);
    m_view->takeFonts();
    for (int column = 0; column < m_model->columnCount(); ++column)
        m_view->setColumnHidden(column, !m_columns[size_t(column)].isShown());
    setColumnWidths();
}

/// The columns share the width without the scroll bar, whether or not it is visible, so that nothing moves when it
/// appears. With a large font the bar is wider than its usual room.
void oSGrid::setColumnWidths()
{
    const int barAndFrame = m_view->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * m_view->frameWidth();
    const std::vector<clsGridColumn> &columns = m_model->columns();
    const std::vector<int> widths = mdGridWidths(columns, m_view->width() - std::max(ScrollBarRoom, barAndFrame));
    for (size_t column = 0; column < columns.size(); ++column) {
        if (!columns[column].isShown())
            continue;
        m_view->setColumnWidth(int(column), widths[column]);
        if (columns[column].room != clsGridRoom::Share)
            m_view->setColumnHidden(int(column), widths[column] == 0);
    }
}

void oSGrid::Redraw(bool keepInView)
{
    {
        const clsPaintingOff off(*this);
        refill(SelectedRow(), keepInView);
    }
    announceSelection();
}

void oSGrid::refill(int selected, bool keepInView)
{
    if (!m_readItems)
        return;
    const int scrolled = m_view->verticalScrollBar()->value();
    const int column = SelectedColumn();
    m_model->fill(m_readItems());
    fitRows();
    // If the selected row no longer exists, selects the last one; if none was selected, none.
    m_view->selectOnly(std::min(selected, Rows()) - 1, column - 1);
    if (m_orderable)
        m_model->renumber();
    if (keepInView)
        bringIntoView();
    else
        m_view->verticalScrollBar()->setValue(scrolled);
    describe();
}

/// All rows have the same height, unless a column wraps its text.
void oSGrid::fitRows()
{
    const std::vector<clsGridColumn> &columns = m_model->columns();
    const auto wraps = [](const clsGridColumn &column) { return column.isShown() && mdGridWraps(column.alignment); };
    if (std::none_of(columns.begin(), columns.end(), wraps))
        return;
    QHeaderView &heights = *m_view->verticalHeader();
    {
        const QSignalBlocker inBulk(&heights);
        for (int row = 0; row < Rows(); ++row) {
            int height = mdGridRowHeight();
            for (int column = 0; column < int(columns.size()); ++column)
                if (wraps(columns[size_t(column)]))
                    height = std::max(height,
                        m_view->delegate()->wrappedHeight(
                            m_model->cell(row, column).text, column, m_view->columnWidth(column)));
            heights.resizeSection(row, height);
        }
    }
    m_view->doItemsLayout();
}

/// Scrolls to the end of the list and then to the selected row, which is then as far down as possible.
void oSGrid::bringIntoView()
{
    m_view->scrollToBottom();
    if (const int row = SelectedRow())
        m_view->scrollTo(m_model->index(row - 1, m_model->firstShownColumn()), QAbstractItemView::PositionAtBottom);
}

int oSGrid::SelectedRow() const
{
    return m_view->selectedRow() + 1;
}

int oSGrid::SelectedItemData() const
{
    const int row = SelectedRow();
    return row ? m_model->itemData(row - 1) : 0;
}

void oSGrid::SelectRow(int row)
{
    m_view->selectOnly(row - 1);
}

void oSGrid::SelectItem(int itemData)
{
    for (int row = 0; row < Rows(); ++row)
        if (m_model->itemData(row) == itemData) {
            SelectRow(row + 1);
            return;
        }
}

int oSGrid::SelectedColumn() const
{
    return m_view->currentIndex().column() + 1;
}

void oSGrid::SelectColumn(int column)
{
    m_view->selectOnly(SelectedRow() - 1, column - 1);
}

int oSGrid::RowAt(const QPoint &position) const
{
    return m_view->indexAt(position).row() + 1;
}

int oSGrid::ColumnAt(const QPoint &position) const
{
    return m_view->indexAt(position).column() + 1;
}

/// The two items swap places immediately, and so does the claim: a screen's Cancel does not undo it. If key columns
/// determine the order, the rows stay and only the selection moves.
void oSGrid::moveSelectedRow(int by)
{
    const int row = SelectedRow();
    const int other = row + by;
    if (!m_orderable || row == 0 || other < 1 || other > Rows())
        return;
    m_model->writeOrder(row - 1, other);
    m_model->writeOrder(other - 1, row);
    {
        const clsPaintingOff off(*this);
        refill(row, true);
        SelectRow(other);
    }
    announceSelection();
    emit OrderChange();
}

void oSGrid::announceSelection()
{
    if (m_drawing)
        return;
    updateArrows();
    emit MarksChange();
    const int row = SelectedRow();
    const int item = SelectedItemData();
    if (row == m_announcedRow && item == m_announcedItem)
        return;
    m_announcedRow = row;
    m_announcedItem = item;
    emit SelectionChange(item, row);
}

void oSGrid::updateArrows()
{
    const int row = SelectedRow();
    m_arrows->setMovable(row > 1, row > 0 && row < Rows());
}

void oSGrid::popUpMenu(const QPoint &position)
{
    if (m_popupMenuName.isEmpty())
        return;
    if (auto *menu = window()->findChild<QMenu *>(m_popupMenuName))
        menu->popup(m_view->viewport()->mapToGlobal(position));
}

void oSGrid::captureCharacter(const QString &character)
{
    if (!m_typing->isActive())
        m_typed.clear();
    m_typing->start();
    m_typed += character;
}

/// Sets the screen reader's texts of a grid: its name from the screen, and the text painted in an empty one.
void oSGrid::describe()
{
    m_view->setAccessibleName(accessibleName());
    m_view->setAccessibleDescription(Rows() == 0 ? m_view->emptyText() : accessibleDescription());
}

void oSGrid::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    describe();
}

bool oSGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == m_view->viewport()) {
        setColumnWidths();
        fitRows();
    }
    return QWidget::eventFilter(watched, event);
}

void oSGrid::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    m_view->takeFonts();
    setColumnWidths();
    fitRows();
}
