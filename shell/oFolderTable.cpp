#include "shell/oFolderTable.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdTheme.h"
#include "controls/oGridHeader.h"
#include "controls/oGridView.h"
#include "shell/clsFolderDelegate.h"
#include "shell/oFolderHeader.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

using Model = clsFolderModel;

/// A text that fits into each column; the columns of the claim and the client share the remaining width.
constexpr const char *Fitting[Model::Columns]
    = {"Hartwell disrepair LA-20", "1A", "Mrs Jane Hartwell", "NB0859611/A", "0,000", "000,000.00", "000,000.00",
        "00,000.00", "00,000.00", "00,000.00", "000,000.00", "000,000.00", "000", "000", "00/00/00 00:00"};
constexpr int SignRoom = 6; ///< beside a heading, in addition to the cell's edge
constexpr int FocusFrame = 2;

/// The order in which columns are left out. The claim and its total never are.
constexpr Model::Column FirstToGo[]
    = {Model::All, Model::Changed, Model::Items, Model::Scheme, Model::Reference, Model::Form, Model::VAT,
        Model::Counsel, Model::Client, Model::Disbursements, Model::ProfitCosts, Model::Warnings, Model::Errors};

} // namespace

oFolderTable::oFolderTable(clsShownClaims &claims, QWidget *parent)
    : QTableView(parent)
    , m_claims(claims)
    , m_header(new oFolderHeader(this))
    , m_delegate(new clsFolderDelegate(this))
{
    setObjectName(QStringLiteral("tblClaims"));
    setAccessibleName(QStringLiteral("Claims"));
    setModel(&claims);
    setHorizontalHeader(m_header);
    setItemDelegate(m_delegate);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setMouseTracking(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(FocusFrame);
    auto *end = new oGridHeaderEnd(this);
    end->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    addScrollBarWidget(end, Qt::AlignTop);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(ScrollPerItem);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(mdGridRowHeight());
    connect(m_header, &oFolderHeader::SortAsked, this, &oFolderTable::SortBy);
    connect(this, &QAbstractItemView::doubleClicked, this, &oFolderTable::OpenAsked);
}

QSize oFolderTable::minimumSizeHint() const
{
    constexpr int Rows = 4;
    return {Theme::scaled(400), mdGridHeadingHeight() + Rows * mdGridRowHeight()};
}

QList<int> oFolderTable::ChosenRows() const
{
    return m_claims.RowsOf(selectionModel()->selection());
}

void oFolderTable::SortBy(int column)
{
    const bool turns
        = m_header->sortIndicatorSection() == column && m_header->sortIndicatorOrder() == Qt::AscendingOrder;
    const Qt::SortOrder order = turns ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_header->setSortIndicator(column, order);
    m_claims.sort(column, order);
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

void oFolderTable::KeepPlace(const std::function<void()> &change)
{
    const int top = verticalScrollBar()->value();
    const int last = rowAt(viewport()->height() - 1);
    const QModelIndex current = currentIndex();
    const bool isSeen = current.isValid() && current.row() >= top && (last < 0 || current.row() <= last);
    const QPersistentModelIndex kept = isSeen ? current : m_claims.index(top, 0);
    const int before = kept.row();
    change();
    // A list at its top stays there while it grows.
    if (!kept.isValid() || (!isSeen && top == 0))
        return;
    executeDelayedItemsLayout(); // the scroll bar has to know of the new rows
    verticalScrollBar()->setValue(top + kept.row() - before);
}

void oFolderTable::FitSums(const clsFolderSums &sums)
{
    const QFontMetrics strong(mdGridHeadingFont());
    bool isWider = false;
    for (int column = 0; column < Model::Columns; ++column) {
        const int width = strong.horizontalAdvance(sums.text(column));
        if (width <= m_sumWidths[size_t(column)])
            continue;
        m_sumWidths[size_t(column)] = width;
        isWider = true;
    }
    if (isWider)
        placeColumns();
}

void oFolderTable::setEmptyText(const QString &text)
{
    m_emptyText = text;
    setAccessibleDescription(m_claims.rowCount() == 0 ? text : QString());
    viewport()->update();
}

bool oFolderTable::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_delegate->takeFonts();
        verticalHeader()->setDefaultSectionSize(mdGridRowHeight());
        placeColumns();
    }
    const bool result = QTableView::event(event);
    if (event->type() == QEvent::Paint)
        oGridView::paintFrameOf(*this);
    return result;
}

bool oFolderTable::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::MouseMove)
        hoverAt(static_cast<QMouseEvent *>(event)->position().toPoint());
    else if (event->type() == QEvent::Leave)
        hoverAt({-1, -1});
    return QTableView::viewportEvent(event);
}

void oFolderTable::hoverAt(const QPoint &place)
{
    const int row = indexAt(place).row();
    if (row == m_hoveredRow)
        return;
    m_hoveredRow = row;
    m_delegate->setHoveredRow(row);
    viewport()->update();
}

void oFolderTable::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers() == Qt::NoModifier) {
        if (currentIndex().isValid())
            emit OpenAsked();
        return;
    }
    QTableView::keyPressEvent(event);
}

/// Keys move between rows and never between cells, so that typed letters always search the claims' names.
QModelIndex oFolderTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    QScrollBar &across = *horizontalScrollBar();
    switch (action) {
    case MoveHome: return m_claims.index(0, Model::Claim);
    case MoveEnd: return m_claims.index(m_claims.rowCount() - 1, Model::Claim);
    case MoveLeft: across.triggerAction(QAbstractSlider::SliderSingleStepSub); return currentIndex();
    case MoveRight: across.triggerAction(QAbstractSlider::SliderSingleStepAdd); return currentIndex();
    default: return QTableView::moveCursor(action, modifiers);
    }
}

/// If opened by a key, the menu appears below the current row.
void oFolderTable::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    const QRect row = visualRect(currentIndex());
    emit MenuAsked(isByKey ? viewport()->mapToGlobal(row.bottomLeft()) : event->globalPos());
}

void oFolderTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    // The lines around the current row span all its cells.
    viewport()->update();
}

void oFolderTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_claims.rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setFont(Theme::font());
    painter.setPen(Theme::Ink2);
    painter.drawText(viewport()->rect().adjusted(Theme::Space24, 0, -Theme::Space24, 0),
        Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void oFolderTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    placeColumns();
}

int oFolderTable::widthOf(int column) const
{
    const QFontMetrics strong(mdGridHeadingFont());
    const QString heading = m_claims.headerData(column, Qt::Horizontal).toString();
    return std::max({strong.horizontalAdvance(heading) + SignRoom,
               strong.horizontalAdvance(QString::fromLatin1(Fitting[column])), m_sumWidths[size_t(column)]})
        + 2 * clsFolderDelegate::CellEdge;
}

void oFolderTable::placeColumns()
{
    const int room = viewport()->width();
    int widths[Model::Columns];
    int needed = 0;
    for (int column = 0; column < Model::Columns; ++column)
        needed += widths[column] = widthOf(column);
    for (const Model::Column column : FirstToGo) {
        const bool gives = needed > room;
        m_header->setSectionHidden(column, gives);
        if (gives)
            needed -= widths[column];
    }
    const int left = std::max(0, room - needed);
    widths[Model::Client] += left / 3;
    widths[Model::Claim] += left - left / 3;
    for (int column = 0; column < Model::Columns; ++column)
        if (!m_header->isSectionHidden(column))
            m_header->resizeSection(column, widths[column]);
    emit ColumnsPlaced();
}
