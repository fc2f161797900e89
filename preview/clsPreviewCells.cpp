#include "preview/clsPreviewCells.h"

#include "base/clsRunTimeError.h"

void clsPreviewCells::RemoveAll()
{
    m_columns.clear();
    m_rows.clear();
    m_cells.clear();
    m_whyNot.clear();
}

void clsPreviewCells::AddColumn(const QString &key, int width, int share)
{
    // The cells of a row are contiguous, so a column can't be added later.
    if (!m_cells.empty())
        throw clsRunTimeError(clsRunTimeError::InvalidProcedureCall);
    m_columns.push_back({key, width, share});
}

void clsPreviewCells::AddRow(int height)
{
    clsRow row;
    row.height = height;
    m_rows.push_back(row);
}

void clsPreviewCells::ExpectRows(int count)
{
    m_rows.reserve(m_rows.size() + 2 * size_t(count));
    m_cells.reserve(m_cells.size() + size_t(count) * m_columns.size());
}

void clsPreviewCells::SetCell(int row, int column, clsPreviewCell cell)
{
    clsRow &place = rowAt(row);
    static_cast<void>(columnAt(column)); // checks that the column exists
    if (place.firstCell == Nothing) {
        place.firstCell = int(m_cells.size());
        m_cells.resize(m_cells.size() + m_columns.size());
    }
    place.wraps |= cell.wraps();
    m_cells[size_t(place.firstCell + column - 1)] = std::move(cell);
}

const clsPreviewCell &clsPreviewCells::Cell(int row, int column) const
{
    static const clsPreviewCell empty;
    const clsRow &place = rowAt(row);
    static_cast<void>(columnAt(column));
    return place.firstCell == Nothing ? empty : m_cells[size_t(place.firstCell + column - 1)];
}

QString clsPreviewCells::WhyNot(int row, int column) const
{
    return m_whyNot.isEmpty() ? QString() : m_whyNot.value({row, column});
}

const clsPreviewCells::clsRow &clsPreviewCells::rowAt(int row) const
{
    if (row < 1 || row > Rows())
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
    return m_rows[size_t(row - 1)];
}

const clsPreviewCells::clsColumn &clsPreviewCells::columnAt(int column) const
{
    if (column < 1 || column > Columns())
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
    return m_columns[size_t(column - 1)];
}
