#pragma once

#include "controls/clsGridAlignment.h"

#include <QHash>
#include <QString>

#include <utility>
#include <vector>

/// The type of a row, which only decides the lines drawn around it.
enum class clsPreviewRowLook : unsigned char {
    Ordinary,
    Joined, ///< a band of cells without gaps, so that a word can be written across two of them
    Captions, ///< stays in view while the rows below scroll; with a line below
    Totals, ///< with a line above
};

/// What the figures of a row refer to.
struct clsPreviewOrigin {
    enum clsKind : unsigned char { Nothing, ScheduleItem, ScheduleTotal };

    clsKind kind = Nothing;
    int order = 0; ///< of the item

    friend bool operator==(const clsPreviewOrigin &, const clsPreviewOrigin &) = default;
};

struct clsPreviewCell {
    QString text;
    clsGridAlignment alignment = clsGridAlignment::Left;
    bool bold = false;
    bool underline = false;

    bool wraps() const { return mdGridWraps(alignment); }
};

/// The cells of the preview grid, counted from 1. They are stored in one block; a row that was never written to has
/// none, like the spacers that make up half the rows of a schedule. A position outside the grid is the subscript error.
class clsPreviewCells {
public:
    int Rows() const { return int(m_rows.size()); }
    int Columns() const { return int(m_columns.size()); }

    void RemoveAll();
    /// `share` is the column's share of the sheet's width, in hundredths; 0 for a fixed width.
    void AddColumn(const QString &key, int width, int share = 0);
    void setColumnWidth(int column, int width) { const_cast<clsColumn &>(columnAt(column)).width = width; }
    void AddRow(int height);
    /// Reserves space for that many more rows, each with a spacer.
    void ExpectRows(int count);
    void SetCell(int row, int column, clsPreviewCell cell);
    /// Sets the reason why a cell's figure can't be computed.
    void SetWhyNot(int row, int column, const QString &whyNot) { m_whyNot[{row, column}] = whyNot; }
    void setRowHeight(int row, int height) { rowAt(row).height = height; }
    void setRowLook(int row, clsPreviewRowLook look) { rowAt(row).look = look; }
    void setOrigin(int row, clsPreviewOrigin origin) { rowAt(row).origin = origin; }

    const QString &ColumnKey(int column) const { return columnAt(column).key; }
    int ColumnWidth(int column) const { return columnAt(column).width; }
    int ColumnShare(int column) const { return columnAt(column).share; }
    int RowHeight(int row) const { return rowAt(row).height; }
    clsPreviewRowLook RowLook(int row) const { return rowAt(row).look; }
    clsPreviewOrigin Origin(int row) const { return rowAt(row).origin; }
    /// True for a row that was never written to, not even with an empty text.
    bool IsSpacer(int row) const { return rowAt(row).firstCell == Nothing; }
    /// True for a row with a cell that may take more than one line.
    bool Wraps(int row) const { return rowAt(row).wraps; }
    /// The cell; an empty one if it was never written.
    const clsPreviewCell &Cell(int row, int column) const;
    /// The reason why the cell's figure can't be computed; empty for all other cells.
    QString WhyNot(int row, int column) const;

private:
    static constexpr int Nothing = -1;
    struct clsColumn {
        QString key;
        int width;
        int share;
    };
    struct clsRow {
        int firstCell = Nothing;
        int height = 0;
        clsPreviewRowLook look = clsPreviewRowLook::Ordinary;
        bool wraps = false;
        clsPreviewOrigin origin {};
    };

    const clsRow &rowAt(int row) const;
    clsRow &rowAt(int row) { return const_cast<clsRow &>(std::as_const(*this).rowAt(row)); }
    const clsColumn &columnAt(int column) const;

    std::vector<clsColumn> m_columns;
    std::vector<clsRow> m_rows;
    std::vector<clsPreviewCell> m_cells;
    QHash<std::pair<int, int>, QString> m_whyNot; ///< by row and column
};
