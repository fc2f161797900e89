#include "preview/oPreviewGrid.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>

// The keys of the preview, and marking a row to ask about its figures.

int oPreviewGrid::RowOf(clsPreviewOrigin origin) const
{
    for (int row = 1; row <= Rows() && origin.kind != clsPreviewOrigin::Nothing; ++row)
        if (Origin(row) == origin)
            return row;
    return 0;
}

/// The nearest row with figures from a row on, in a direction; 0 for none.
int oPreviewGrid::figuresFrom(int row, int direction) const
{
    for (; row >= 1 && row <= Rows(); row += direction)
        if (Origin(row).kind != clsPreviewOrigin::Nothing)
            return row;
    return 0;
}

void oPreviewGrid::MarkRow(int row)
{
    m_marked = row >= 1 && row <= Rows() && Origin(row).kind != clsPreviewOrigin::Nothing ? row : 0;
    m_markedOrigin = m_marked ? Origin(m_marked) : clsPreviewOrigin();
    m_painter.setMarkedRow(m_marked);
    // Screen readers read the current row.
    selectionModel()->setCurrentIndex(
        m_marked ? m_model->index(m_marked - 1, 0) : QModelIndex(), QItemSelectionModel::NoUpdate);
    if (m_marked)
        BringIntoView(m_marked, 1);
    viewport()->update();
}

void oPreviewGrid::MoveMark(int rows)
{
    int to = m_marked;
    for (int step = 0; step < std::abs(rows); ++step) {
        const int next = figuresFrom(to + (rows < 0 ? -1 : 1), rows < 0 ? -1 : 1);
        if (!next)
            break;
        to = next;
    }
    if (to)
        MarkRow(to);
}

/// After a redraw: moves the mark to the row with the same figures.
void oPreviewGrid::keepMark()
{
    m_pointed = 0;
    m_marked = RowOf(m_markedOrigin);
    m_markedOrigin = m_marked ? m_markedOrigin : clsPreviewOrigin();
    m_painter.setMarkedRow(m_marked);
}

bool oPreviewGrid::markByKey(int key)
{
    const int page = std::max(1, verticalScrollBar()->pageStep() / verticalScrollBar()->singleStep());
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_pointed = 0;
        if (m_marked)
            emit WhyAsked();
        else
            MarkRow(figuresFrom(std::max(1, FirstRowInView()), 1));
        return m_marked;
    case Qt::Key_Escape:
        if (!m_marked)
            return false;
        MarkRow(0);
        return true;
    default: break;
    }
    if (!m_marked)
        return false;
    switch (key) {
    case Qt::Key_Up: MoveMark(-1); return true;
    case Qt::Key_Down: MoveMark(1); return true;
    case Qt::Key_PageUp: MoveMark(-page); return true;
    case Qt::Key_PageDown: MoveMark(page); return true;
    case Qt::Key_Home: MarkRow(figuresFrom(1, 1)); return true;
    case Qt::Key_End: MarkRow(figuresFrom(Rows(), -1)); return true;
    default: return false;
    }
}

void oPreviewGrid::keyPressEvent(QKeyEvent *event)
{
    if (markByKey(event->key())) {
        event->accept();
        return;
    }
    struct clsKey {
        int key;
        QScrollBar *bar;
        QScrollBar::SliderAction action;
    };
    // clang-format off
    const clsKey keys[] = {
        {Qt::Key_Up,       verticalScrollBar(),   QScrollBar::SliderSingleStepSub},
        {Qt::Key_Down,     verticalScrollBar(),   QScrollBar::SliderSingleStepAdd},
        {Qt::Key_Left,     horizontalScrollBar(), QScrollBar::SliderSingleStepSub},
        {Qt::Key_Right,    horizontalScrollBar(), QScrollBar::SliderSingleStepAdd},
        {Qt::Key_PageUp,   verticalScrollBar(),   QScrollBar::SliderPageStepSub},
        {Qt::Key_PageDown, verticalScrollBar(),   QScrollBar::SliderPageStepAdd},
        {Qt::Key_Home,     verticalScrollBar(),   QScrollBar::SliderToMinimum},
        {Qt::Key_End,      verticalScrollBar(),   QScrollBar::SliderToMaximum},
    };
    // clang-format on
    for (const clsKey &key : keys)
        if (key.key == event->key()) {
            key.bar->triggerAction(key.action);
            event->accept();
            return;
        }
    event->ignore();
}

int oPreviewGrid::AskedRow() const
{
    if (m_pointed)
        return m_pointed;
    return m_marked ? m_marked : figuresFrom(std::max(1, FirstRowInView()), 1);
}

QRect oPreviewGrid::PlaceOf(int row) const
{
    const std::vector<int> edges = columnEdges();
    const int top = verticalHeader()->sectionViewportPosition(row - 1);
    return QRect(edges.front(), top, edges.back() - edges.front(), RowHeight(row)).translated(viewport()->pos());
}
