#include "wordexport/document/clsWordTableShape.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <cstring>

using pugi::xml_node;

namespace {

// Beyond what any table has, so that nobody's file makes the sums overflow.
constexpr int MostColumns = 1'000;
constexpr int HighestRow = 100'000;

xml_node cellAt(const xml_node &row, int column)
{
    int at = clsWordTableShape::firstColumnOf(row);
    for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
         cell = WordXml::nextItem(cell, WordXml::isCell)) {
        if (at == column)
            return cell;
        at += clsWordTableShape::spanOf(cell);
    }
    return {};
}

// The widest line at a side of a cell, in twips.
int widestSideLine(const xml_node &borders)
{
    int eighths = 0;
    for (const char *side : {"w:left", "w:right", "w:start", "w:end", "w:insideV"})
        eighths = std::max(eighths, borders.child(side).attribute("w:sz").as_int());
    return eighths * 20 / 8;
}

} // namespace

clsWordTableShape::clsWordTableShape(const xml_node &table, const clsWordLooks &looks)
    : m_table(table)
    , m_margins(looks.ofCells(table))
{
    for (const xml_node &column : table.child("w:tblGrid").children("w:gridCol"))
        m_columns.push_back(column.attribute("w:w").as_int());
}

xml_node clsWordTableShape::heightOf(const xml_node &row)
{
    return row.child("w:trPr").child("w:trHeight");
}

bool clsWordTableShape::isExact(const xml_node &row)
{
    return std::strcmp(heightOf(row).attribute("w:hRule").value(), "exact") == 0;
}

int clsWordTableShape::heightSaidBy(const xml_node &row)
{
    return std::clamp(heightOf(row).attribute("w:val").as_int(), 0, HighestRow);
}

int clsWordTableShape::firstColumnOf(const xml_node &row)
{
    return std::clamp(row.child("w:trPr").child("w:gridBefore").attribute("w:val").as_int(), 0, MostColumns);
}

int clsWordTableShape::spanOf(const xml_node &cell)
{
    return std::clamp(cell.child("w:tcPr").child("w:gridSpan").attribute("w:val").as_int(1), 1, MostColumns);
}

bool clsWordTableShape::isMergedIntoAbove(const xml_node &cell)
{
    const xml_node merge = cell.child("w:tcPr").child("w:vMerge");
    return merge && std::strcmp(WordXml::val(merge), "restart") != 0;
}

xml_node clsWordTableShape::lastRowOf(xml_node row, const xml_node &cell, int gridColumn)
{
    if (!cell.child("w:tcPr").child("w:vMerge"))
        return row;
    for (xml_node next = WordXml::nextItem(row, WordXml::isRow); next && isMergedIntoAbove(cellAt(next, gridColumn));
         next = WordXml::nextItem(row, WordXml::isRow))
        row = next;
    return row;
}

clsWordLooks::Margins clsWordTableShape::allMarginsOf(const xml_node &cell) const
{
    clsWordLooks::Margins margins = m_margins;
    margins.takeOver(clsWordLooks::Margins::saidBy(cell.child("w:tcPr").child("w:tcMar")));
    return margins;
}

clsWordCellText::Place clsWordTableShape::placeOf(const xml_node &cell, int gridColumn)
{
    const xml_node said = cell.child("w:tcPr").child("w:tcW");
    int width = std::strcmp(said.attribute("w:type").value(), "dxa") == 0 ? said.attribute("w:w").as_int() : 0;
    if (width <= 0)
        width = widthOfColumns(gridColumn, gridColumn + spanOf(cell));
    const clsWordLooks::Margins margins = allMarginsOf(cell);
    return {width - margins.left.value_or(0) - margins.right.value_or(0) - lineLoss(),
        WordXml::val(m_table.child("w:tblPr").child("w:tblStyle"))};
}

int clsWordTableShape::marginsOf(const xml_node &cell) const
{
    const clsWordLooks::Margins margins = allMarginsOf(cell);
    return margins.top.value_or(0) + margins.bottom.value_or(0);
}

std::optional<int> clsWordTableShape::roomOf(xml_node row, const xml_node &cell, int gridColumn) const
{
    const xml_node direction = cell.child("w:tcPr").child("w:textDirection");
    if (direction && std::strcmp(WordXml::val(direction), "lrTb") != 0)
        return {};
    int room = -marginsOf(cell);
    const xml_node last = lastRowOf(row, cell, gridColumn);
    for (;; row = WordXml::nextItem(row, WordXml::isRow)) {
        if (!isExact(row))
            return {};
        room += heightSaidBy(row);
        if (row == last)
            return room;
    }
}

int clsWordTableShape::widthOfColumns(int from, int to) const
{
    int width = 0;
    for (int i = from; i < std::min(to, int(m_columns.size())); ++i)
        width += m_columns[size_t(i)];
    return width;
}

// Half of its outer lines' width is lost to each cell of a table.
int clsWordTableShape::lineLoss()
{
    if (m_lineLoss < 0) {
        int widest = widestSideLine(m_table.child("w:tblPr").child("w:tblBorders"));
        for (xml_node row = WordXml::firstItem(m_table, WordXml::isRow); row;
             row = WordXml::nextItem(row, WordXml::isRow))
            for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
                 cell = WordXml::nextItem(cell, WordXml::isCell))
                widest = std::max(widest, widestSideLine(cell.child("w:tcPr").child("w:tcBorders")));
        m_lineLoss = (widest + 1) / 2;
    }
    return m_lineLoss;
}
