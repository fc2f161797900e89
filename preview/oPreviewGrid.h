#pragma once

#include "preview/clsPreviewModel.h"
#include "preview/clsPreviewPainter.h"

#include <QTableView>

class oPreviewCaptions;

/// The read-only grid of the preview, `sgPreview`: rows and columns that are cleared and refilled at each redraw. It
/// paints only the rows in view, so that the longest bill scrolls as smoothly as a short one. Rows and columns are
/// counted from 1. The mouse can only scroll it and open its menu.
class oPreviewGrid : public QTableView {
    Q_OBJECT

public:
    explicit oPreviewGrid(QWidget *parent = nullptr);

    /// Switches painting off and on. While it is off the old picture stays, and the cells may be inconsistent.
    void setRedraw(bool redraw);
    bool Redraw() const { return m_redraw; }
    /// Whether a preview is being drawn into the grid.
    void setDrawing(bool drawing) { m_drawing = drawing; }
    bool IsDrawing() const { return m_drawing; }

    void RemoveAll();
    /// Adds a column with a width in pixels. All columns must be added before the first cell.
    void AddColumn(const QString &key, int width, int share = 0);
    void setColumnWidth(int column, int width);
    void AddRow();
    /// Reserves space for that many more rows, each with a spacer.
    void ExpectRows(int count) { m_model->cells.ExpectRows(count); }
    void SetCell(int row, int column, const QString &text, clsGridAlignment alignment, bool bold = false,
        bool underline = false);
    /// Marks a figure that can't be computed: "!", with the reason as its tooltip.
    void SetFailedCell(int row, int column, const QString &whyNot, clsGridAlignment alignment);
    /// Sets the colour of a column's cells in all rows.
    void setColumnBackColour(int column, const QColor &colour);
    void setRowLook(int row, clsPreviewRowLook look);
    /// Sets what a row's figures refer to, so that it can be marked and explained.
    void setOrigin(int row, clsPreviewOrigin origin);
    /// Makes a row as high as its tallest text.
    void FitRowHeight(int row);

    int Rows() const { return m_model->cells.Rows(); }
    int Columns() const { return m_model->cells.Columns(); }
    QString ColumnKey(int column) const { return m_model->cells.ColumnKey(column); }
    int ColumnWidth(int column) const { return m_model->cells.ColumnWidth(column); }
    int ColumnShare(int column) const { return m_model->cells.ColumnShare(column); }
    int RowHeight(int row) const { return m_model->cells.RowHeight(row); }
    QString Text(int row, int column) const { return m_model->cells.Cell(row, column).text; }
    const clsPreviewCell &Cell(int row, int column) const { return m_model->cells.Cell(row, column); }
    QString WhyNot(int row, int column) const { return m_model->cells.WhyNot(row, column); }
    QColor CellBackColour(int row, int column) const;
    QFont CellFont(bool bold, bool underline) const { return m_painter.font(bold, underline); }

    clsPreviewOrigin Origin(int row) const { return m_model->cells.Origin(row); }
    /// The row with the figures of `origin`; 0 for none.
    int RowOf(clsPreviewOrigin origin) const;

    /// The row marked by the user; 0 while the arrow keys scroll.
    int MarkedRow() const { return m_marked; }
    /// Marks a row and scrolls to it; 0 removes the mark. A row without figures can't be marked.
    void MarkRow(int row);
    /// Marks the next row with figures in a direction; does nothing if there is none.
    void MoveMark(int rows);
    /// The row to explain: the one under the pointer if the menu was opened by mouse, otherwise the marked one,
    /// otherwise the first in view; 0 if there is none.
    int AskedRow() const;
    /// Call when a menu opened by the mouse has closed.
    void ForgetPointedRow() { m_pointed = 0; }
    /// The rectangle of a row in the grid, as wide as its columns.
    QRect PlaceOf(int row) const;
    /// The left edge of a column in the grid.
    int LeftOf(int column) const { return viewport()->x() + columnEdges()[size_t(column - 1)]; }

    /// Tints a row until the rows are replaced; 0 for none.
    void setTintedRow(int row);
    int TintedRow() const { return m_painter.tintedRow(); }

    /// The first and last row at least partly in view; 0 in an empty grid.
    int FirstRowInView() const;
    int LastRowInView() const;
    /// Scrolls only as far as needed to show the whole cell; a row taller than the grid is shown from its top.
    void BringIntoView(int row, int column);
    /// The number of pixels of a row hidden above the top; negative for one that starts below it.
    int HiddenAbove(int row) const;
    void SetHiddenAbove(int row, int pixels);
    /// Why a figure can't be computed, or the whole text of an elided cell; otherwise empty.
    QString ToolTipAt(const QPoint &place) const;

signals:
    /// The right mouse button was released, or the menu key pressed, at this position of the screen.
    void RightClick(const QPoint &place);
    /// Enter was pressed on the marked row.
    void WhyAsked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    bool viewportEvent(QEvent *event) override;

private:
    bool markByKey(int key);
    int figuresFrom(int row, int direction) const;
    void keepMark();
    friend class oPreviewCaptions;
    template <class Change> void change(Change what);
    void takeSizes();
    void paintRows(QPainter &painter, const QRect &part, int firstRow, int top) const;
    std::vector<int> columnEdges() const;
    int topOf(int row) const;
    int captionsHeight() const;
    int coveredHeight() const;
    void placeCaptions();

    clsPreviewModel *m_model;
    clsPreviewPainter m_painter;
    oPreviewCaptions *m_captions;
    bool m_redraw = true;
    bool m_drawing = false;
    bool m_toTop = false;
    int m_captionsRow = 0;
    int m_marked = 0;
    int m_pointed = 0; ///< under the pointer when the menu was opened; 0 for none
    clsPreviewOrigin m_markedOrigin {}; ///< used to find the marked row again after a redraw
};

/// The grid of the main window, to which the previews are drawn; null until that window is loaded.
extern oPreviewGrid *PreviewGrid;
