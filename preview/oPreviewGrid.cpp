#include "preview/oPreviewGrid.h"

#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopeGuard>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

// Set by the main window, which is on a higher floor.
oPreviewGrid *PreviewGrid = nullptr;

/// Shows the column captions at the top edge of the grid while their own row is scrolled out of view.
class oPreviewCaptions : public QWidget {
public:
    explicit oPreviewCaptions(oPreviewGrid *grid)
        : QWidget(grid)
        , m_grid(grid)
    {
        setObjectName(QStringLiteral("sgPreviewCaptions"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
        setFocusPolicy(Qt::NoFocus);
        hide();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        m_grid->paintRows(painter, event->rect(), 1, 0);
    }

private:
    oPreviewGrid *m_grid;
};

oPreviewGrid::oPreviewGrid(QWidget *parent)
    : QTableView(parent)
    , m_model(new clsPreviewModel(this))
    , m_painter(*m_model)
    , m_captions(new oPreviewCaptions(this))
{
    setObjectName(QStringLiteral("sgPreview"));
    setAccessibleName(QStringLiteral("Preview"));
    setModel(m_model);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::TabFocus); // a left click does nothing, so it must not take the focus
    setAutoScroll(false); // scrolling to the marked row is done here
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        header->hide();
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setMinimumSectionSize(1);
    }
}

template <class Change> void oPreviewGrid::change(Change what)
{
    // A single change made while painting is on is shown at once.
    const bool own = m_redraw;
    if (own)
        setRedraw(false);
    const auto on = qScopeGuard([&] {
        if (own)
            setRedraw(true);
    });
    what();
}

void oPreviewGrid::setRedraw(bool redraw)
{
    if (redraw == m_redraw)
        return;
    m_redraw = redraw;
    if (!redraw) {
        setUpdatesEnabled(false);
        m_model->beginChange();
        return;
    }
    m_model->endChange();
    takeSizes();
    keepMark();
    setUpdatesEnabled(true);
    if (m_toTop) {
        verticalScrollBar()->setValue(0);
        horizontalScrollBar()->setValue(0);
    }
    m_toTop = false;
    placeCaptions();
    viewport()->update();
}

/// Passes the widths and heights to the view all together, without painting or signals for each.
void oPreviewGrid::takeSizes()
{
    const QSignalBlocker quietColumns(horizontalHeader());
    const QSignalBlocker quietRows(verticalHeader());
    for (int column = 1; column <= Columns(); ++column)
        horizontalHeader()->resizeSection(column - 1, ColumnWidth(column));
    for (int row = 1; row <= Rows(); ++row)
        verticalHeader()->resizeSection(row - 1, RowHeight(row));
    updateGeometries();
}

void oPreviewGrid::RemoveAll()
{
    change([this] {
        m_model->cells.RemoveAll();
        m_model->columnBacks.clear();
        m_captionsRow = 0;
        m_painter.setTintedRow(0);
        m_toTop = true;
    });
}

void oPreviewGrid::AddColumn(const QString &key, int width, int share)
{
    change([&] { m_model->cells.AddColumn(key, width, share); });
}

void oPreviewGrid::setColumnWidth(int column, int width)
{
    change([&] { m_model->cells.setColumnWidth(column, width); });
}

void oPreviewGrid::setTintedRow(int row)
{
    if (row == m_painter.tintedRow())
        return;
    m_painter.setTintedRow(row);
    viewport()->update();
}

void oPreviewGrid::AddRow()
{
    change([this] { m_model->cells.AddRow(m_painter.itemHeight()); });
}

void oPreviewGrid::SetCell(
    int row, int column, const QString &text, clsGridAlignment alignment, bool bold, bool underline)
{
    change([&] { m_model->cells.SetCell(row, column, {text, alignment, bold, underline}); });
}

void oPreviewGrid::SetFailedCell(int row, int column, const QString &whyNot, clsGridAlignment alignment)
{
    change([&] {
        m_model->cells.SetCell(row, column, {QStringLiteral("!"), alignment, true, false});
        m_model->cells.SetWhyNot(row, column, whyNot);
    });
}

void oPreviewGrid::setColumnBackColour(int column, const QColor &colour)
{
    change([&] { m_model->columnBacks[column] = colour; });
}

void oPreviewGrid::setRowLook(int row, clsPreviewRowLook look)
{
    change([&] {
        m_model->cells.setRowLook(row, look);
        if (look == clsPreviewRowLook::Captions)
            m_captionsRow = row;
    });
}

void oPreviewGrid::setOrigin(int row, clsPreviewOrigin origin)
{
    change([&] { m_model->cells.setOrigin(row, origin); });
}

void oPreviewGrid::FitRowHeight(int row)
{
    change([&] { m_model->cells.setRowHeight(row, m_painter.heightOf(row)); });
}

QColor oPreviewGrid::CellBackColour(int row, int column) const
{
    return m_model->index(row - 1, column - 1).data(Qt::BackgroundRole).value<QBrush>().color();
}

std::vector<int> oPreviewGrid::columnEdges() const
{
    std::vector<int> edges = {-horizontalOffset()};
    for (int column = 1; column <= Columns(); ++column)
        edges.push_back(edges.back() + ColumnWidth(column));
    return edges;
}

void oPreviewGrid::paintRows(QPainter &painter, const QRect &part, int firstRow, int top) const
{
    painter.fillRect(part, Theme::Paper);
    const std::vector<int> edges = columnEdges();
    for (int row = firstRow; row >= 1 && row <= Rows() && top <= part.bottom(); ++row) {
        m_painter.paintRow(painter, row, top, edges);
        top += RowHeight(row);
    }
}

void oPreviewGrid::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const int first = rowAt(event->rect().top()) + 1;
    paintRows(painter, event->rect(), first, first >= 1 ? rowViewportPosition(first - 1) : 0);
}

int oPreviewGrid::topOf(int row) const
{
    return verticalHeader()->sectionPosition(row - 1);
}

/// The height of the caption rows and half of the spacer below them, which contains their line.
int oPreviewGrid::captionsHeight() const
{
    if (m_captionsRow < 1 || m_captionsRow >= Rows())
        return 0;
    return topOf(m_captionsRow + 1) + RowHeight(m_captionsRow + 1) / 2 + 1;
}

int oPreviewGrid::coveredHeight() const
{
    // In a very low window the rows need the room more than their captions.
    constexpr int LeastShare = 3;
    const int height = captionsHeight();
    return height * LeastShare <= viewport()->height() ? height : 0;
}

void oPreviewGrid::placeCaptions()
{
    const int height = verticalScrollBar()->value() > 0 ? coveredHeight() : 0;
    if (height > 0)
        m_captions->setGeometry(QRect(viewport()->pos(), QSize(viewport()->width(), height)));
    m_captions->setVisible(height > 0);
    if (height > 0) {
        m_captions->raise();
        m_captions->update();
    }
}

int oPreviewGrid::FirstRowInView() const
{
    const int covered = verticalScrollBar()->value() > 0 ? coveredHeight() : 0;
    return rowAt(covered) + 1;
}

int oPreviewGrid::LastRowInView() const
{
    const int row = rowAt(viewport()->height() - 1) + 1;
    return row > 0 ? row : Rows();
}

void oPreviewGrid::BringIntoView(int row, int column)
{
    const int top = topOf(row);
    const int scrolled = verticalScrollBar()->value();
    const int lowest = top - coveredHeight();
    const int highest = top + RowHeight(row) - viewport()->height();
    verticalScrollBar()->setValue(std::min(std::max(scrolled, highest), lowest));
    const int left = horizontalHeader()->sectionPosition(column - 1);
    const int right = left + ColumnWidth(column) - viewport()->width();
    horizontalScrollBar()->setValue(std::min(std::max(horizontalScrollBar()->value(), right), left));
}

int oPreviewGrid::HiddenAbove(int row) const
{
    return verticalScrollBar()->value() - topOf(row);
}

void oPreviewGrid::SetHiddenAbove(int row, int pixels)
{
    verticalScrollBar()->setValue(topOf(row) + pixels);
}

void oPreviewGrid::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void oPreviewGrid::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
}

void oPreviewGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void oPreviewGrid::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::RightButton)
        return;
    const int row = rowAt(event->position().toPoint().y()) + 1;
    m_pointed = row > 0 && Origin(row).kind != clsPreviewOrigin::Nothing ? row : 0;
    emit RightClick(event->globalPosition().toPoint());
}

void oPreviewGrid::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse) // the mouse opens it when its button is released
        return;
    m_pointed = 0;
    const QPoint place = m_marked ? PlaceOf(m_marked).bottomLeft() : QPoint(Theme::Space16, Theme::Space16);
    emit RightClick(viewport()->mapToGlobal(place));
}

void oPreviewGrid::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    change([this] {
        m_painter.takeFont();
        for (int row = 1; row <= Rows(); ++row)
            FitRowHeight(row);
    });
}

void oPreviewGrid::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    placeCaptions();
}

void oPreviewGrid::updateGeometries()
{
    QTableView::updateGeometries();
    const int line = m_painter.itemHeight() + m_painter.spacerHeight();
    verticalScrollBar()->setSingleStep(line);
    verticalScrollBar()->setPageStep(std::max(line, viewport()->height() - coveredHeight() - line));
    placeCaptions();
}

bool oPreviewGrid::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), ToolTipAt(help->pos()), viewport());
    return true;
}

QString oPreviewGrid::ToolTipAt(const QPoint &place) const
{
    const int row = rowAt(place.y()) + 1;
    const int column = columnAt(place.x()) + 1;
    if (row < 1 || column < 1 || m_captions->geometry().contains(viewport()->mapTo(this, place)))
        return {};
    if (const QString whyNot = WhyNot(row, column); !whyNot.isEmpty())
        return mdPlainToolTip(whyNot);
    return m_painter.isElided(row, column) ? mdPlainToolTip(Text(row, column)) : QString();
}
