#include "editors/oPasteGrid.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdTheme.h"
#include "controls/oGridView.h"
#include "editors/clsPasteModel.h"
#include "editors/oPasteDelegate.h"
#include "editors/oPasteHeader.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace {

constexpr int FrameWidth = 2;
constexpr int TickWidth = 36;
constexpr int NumberWidth = 44;
constexpr int LeftOutWidth = 104;
constexpr int NoteWidth = 300;
constexpr int NarrowestText = 240;

int widthOf(const clsTableColumn *meaning)
{
    if (!meaning)
        return LeftOutWidth;
    switch (meaning->kind) {
    case clsCellKind::FeeEarner: return 124;
    case clsCellKind::Code: return 92;
    case clsCellKind::Time: return 88;
    case clsCellKind::Counsel:
    case clsCellKind::Enhancement: return 152;
    case clsCellKind::Tick: return 124;
    case clsCellKind::Text: return NarrowestText;
    default: return 112;
    }
}

} // namespace

oPasteGrid::oPasteGrid(clsPasteModel &model, QWidget *parent)
    : QTableView(parent)
    , m_model(model)
    , m_headings(new oPasteHeader(model, this))
{
    setObjectName(QStringLiteral("sgPasteItems"));
    setAccessibleName(QStringLiteral("Rows"));
    setHorizontalHeader(m_headings);
    setModel(&model);
    setItemDelegate(new oPasteDelegate(this));
    setShowGrid(false);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(FrameWidth);
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(AnyKeyPressed | DoubleClicked);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(mdGridRowHeight());
    m_headings->setSectionResizeMode(QHeaderView::Fixed);
    viewport()->setMouseTracking(true);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &index) {
        if (index.column() == clsPasteModel::Tick)
            m_model.SetTicked({index.row()}, !m_model.IsTicked(index.row()));
    });
    connect(&m_model, &QAbstractItemModel::modelReset, this, &oPasteGrid::shareWidth);
    connect(&m_model, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &from, const QModelIndex &to) {
        if (m_notesBeneath)
            fitRows(from.row(), to.row());
    });
}

/// Text columns get the width left by the others; if there is no room for the notes, they go below their rows.
void oPasteGrid::shareWidth()
{
    const int note = m_model.NoteColumn();
    int left = viewport()->width() - Theme::scaled(TickWidth) - Theme::scaled(NumberWidth);
    int text = -1;
    setColumnWidth(clsPasteModel::Tick, Theme::scaled(TickWidth));
    setColumnWidth(clsPasteModel::Number, Theme::scaled(NumberWidth));
    for (int column = clsPasteModel::FirstPlace; column < note; ++column) {
        const clsTableColumn *meaning = m_model.MeaningOf(column - clsPasteModel::FirstPlace);
        const int width = qMax(Theme::scaled(widthOf(meaning)), m_headings->WidthFor(column));
        setColumnWidth(column, width);
        left -= width;
        if (meaning && meaning->kind == clsCellKind::Text)
            text = column;
    }
    const bool beneath = left < Theme::scaled(NoteWidth);
    left -= beneath ? 0 : Theme::scaled(NoteWidth);
    if (text >= 0 && left > 0)
        setColumnWidth(text, columnWidth(text) + left);
    setColumnWidth(note, Theme::scaled(NoteWidth) + (text < 0 && left > 0 ? left : 0));
    setColumnHidden(note, beneath);
    if (beneath || m_notesBeneath) {
        m_notesBeneath = beneath;
        fitRows(0, m_model.rowCount() - 1);
    }
    m_headings->Place();
}

/// Resizes rows together: after each single change the header would recompute the positions of all rows.
void oPasteGrid::fitRows(int first, int last)
{
    if (first == last)
        return fitRow(first);
    QHeaderView &heights = *verticalHeader();
    {
        const QSignalBlocker inBulk(&heights);
        heights.setUpdatesEnabled(false);
        for (int row = first; row <= last; ++row)
            fitRow(row);
        heights.setUpdatesEnabled(true);
    }
    doItemsLayout();
}

void oPasteGrid::fitRow(int row)
{
    const bool hasNote = m_notesBeneath && !m_model.index(row, m_model.NoteColumn()).data().toString().isEmpty();
    const int height = mdGridRowHeight() * (hasNote ? 2 : 1);
    if (rowHeight(row) != height)
        setRowHeight(row, height);
}

bool oPasteGrid::event(QEvent *event)
{
    const bool result = QTableView::event(event);
    if (event->type() == QEvent::Paint)
        oGridView::paintFrameOf(*this);
    return result;
}

void oPasteGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    shareWidth();
}

void oPasteGrid::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    m_headings->Place();
}

bool oPasteGrid::GoToWrong(int direction)
{
    const QModelIndex wrong = m_model.NextWrong(currentIndex(), direction);
    if (!wrong.isValid())
        return false;
    setFocus(Qt::OtherFocusReason);
    // Independently of the modifier keys held.
    selectionModel()->setCurrentIndex(wrong, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(wrong);
    return true;
}

/// Sets all selected rows to the opposite of the current row's tick.
void oPasteGrid::tickChosen()
{
    std::vector<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows())
        rows.push_back(index.row());
    m_model.SetTicked(rows, !m_model.IsTicked(currentIndex().row()));
}

void oPasteGrid::keyPressEvent(QKeyEvent *event)
{
    // Keys that a cell's editor ignores; Enter has already stored its text.
    if (state() == EditingState) {
        event->accept();
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Space && !event->modifiers()) {
        tickChosen();
    } else if (isEnter && !(event->modifiers() & ~Qt::KeypadModifier)) {
        if (currentIndex().column() == clsPasteModel::Tick)
            tickChosen();
        else if (m_model.flags(currentIndex()) & Qt::ItemIsEditable)
            edit(currentIndex());
    } else {
        QTableView::keyPressEvent(event);
        return;
    }
    event->accept();
}

void oPasteGrid::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    if (!currentIndex().isValid() && m_model.rowCount() > 0)
        setCurrentIndex(m_model.index(0, clsPasteModel::Tick));
}

void oPasteGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    if (m_model.rowCount() == 0) {
        painter.setPen(Theme::Ink2);
        painter.drawText(viewport()->rect().adjusted(Theme::Space24, 0, -Theme::Space24, 0),
            int(Qt::AlignCenter) | Qt::TextWordWrap, m_emptyText);
        return;
    }
    if (!m_notesBeneath)
        return;
    const int first = qMax(0, rowAt(0));
    const int last = rowAt(viewport()->height() - 1) < 0 ? m_model.rowCount() - 1 : rowAt(viewport()->height() - 1);
    for (int row = first; row <= last; ++row)
        oPasteDelegate::paintNote(painter,
            QRect(Theme::scaled(TickWidth + NumberWidth), rowViewportPosition(row) + mdGridRowHeight(),
                viewport()->width() - Theme::scaled(TickWidth + NumberWidth), mdGridRowHeight() - 1),
            m_model.index(row, m_model.NoteColumn()));
}
