#include "wordexport/document/clsWordTableShape.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <cstring>

using pugi::xml_node;

namespace {

// More than any table has, so that no file makes the sums overflow.
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

// In twips; the file uses eighths of a point.
int widthOfLine(const xml_node &line)
{
    return line.attribute("w:sz").as_int() * 20 / 8;
}

int widestSideLine(const xml_node &borders)
{
    int widest = 0;
    if (!borders)
        return widest;
    for (const char *side : {"w:left", "w:right", "w:start", "w:end", "w:insideV"})
        widest = std::max(widest, widthOfLine(borders.child(side)));
    return widest;
}

int sideLines(const xml_node &borders)
{
    int sum = 0;
    for (const char *side : {"w:left", "w:right", "w:start", "w:end"})
        sum += widthOfLine(borders.child(side));
    return sum;
}

} // namespace

clsWordTableShape::clsWordTableShape(const xml_node &table, const clsWordLooks &looks)
    : m_table(table)
    , m_margins(looks.ofCells(table))
{
    for (const xml_node &column : table.child("w:tblGrid").children("w:gridCol"))
        m_columns.push_back(column.attribute("w:w").as_int());
    m_across = widthOfColumns(0, int(m_columns.size()));
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

clsWordLooks::Margins clsWordTableShape::marginsOf(const xml_node &cell) const
{
    clsWordLooks::Margins margins = m_margins;
    if (const xml_node own = cell.child("w:tcPr").child("w:tcMar"))
        margins.takeOver(clsWordLooks::Margins::saidBy(own));
    return margins;
}

clsWordCellText::Place clsWordTableShape::placeOf(
    const xml_node &cell, int gridColumn, const clsWordLooks::Margins &margins)
{
    const xml_node said = cell.child("w:tcPr").child("w:tcW");
    int width = std::strcmp(said.attribute("w:type").value(), "dxa") == 0 ? said.attribute("w:w").as_int() : 0;
    if (width <= 0)
        width = widthOfColumns(gridColumn, gridColumn + spanOf(cell));
    width = asPrinted(gridColumn, width);
    return {width - margins.left.value_or(0) - margins.right.value_or(0) - lineLoss(),
        WordXml::val(m_table.child("w:tblPr").child("w:tblStyle"))};
}

std::optional<int> clsWordTableShape::roomOf(
    xml_node row, const xml_node &last, const xml_node &cell, const clsWordLooks::Margins &margins)
{
    const xml_node direction = cell.child("w:tcPr").child("w:textDirection");
    if (direction && std::strcmp(WordXml::val(direction), "lrTb") != 0)
        return {};
    int room = -margins.top.value_or(0) - margins.bottom.value_or(0) - heightOfLines(row, last);
    for (;; row = WordXml::nextItem(row, WordXml::isRow)) {
        if (!isExact(row) && !m_grown.contains(row))
            return {};
        room += heightSaidBy(row);
        if (row == last)
            return room;
    }
}

void clsWordTableShape::letGrow(const xml_node &row)
{
    if (!isExact(row))
        return;
    heightOf(row).attribute("w:hRule").set_value("atLeast");
    m_grown.insert(row);
}

// The word processor that prints the forms stores cell edges in ten-thousandths of the table's width.
int clsWordTableShape::asPrinted(int gridColumn, int width) const
{
    constexpr int Parts = 10000;
    const int all = m_across;
    if (all <= 0)
        return width;
    const auto part = [all](int twips) { return (qint64(twips) * Parts + all / 2) / all; };
    const int left = widthOfColumns(0, gridColumn);
    return int(((part(left + width) - part(left)) * all + Parts - 1) / Parts);
}

int clsWordTableShape::widthOfColumns(int from, int to) const
{
    int width = 0;
    for (int i = from; i < std::min(to, int(m_columns.size())); ++i)
        width += m_columns[size_t(i)];
    return width;
}

// Each cell of a table loses half the width of its outer lines. If the first cell also has a line on its right, as when
// it spans the table, it loses half of both.
int clsWordTableShape::lineLoss()
{
    if (m_lineLoss < 0) {
        int widest = widestSideLine(m_table.child("w:tblPr").child("w:tblBorders"));
        for (xml_node row = WordXml::firstItem(m_table, WordXml::isRow); row;
             row = WordXml::nextItem(row, WordXml::isRow))
            for (const xml_node &cell :
                {WordXml::firstItem(row, WordXml::isCell), WordXml::lastItem(row, WordXml::isCell)})
                widest = std::max(widest, widestSideLine(cell.child("w:tcPr").child("w:tcBorders")));
        const xml_node first = WordXml::firstItem(WordXml::firstItem(m_table, WordXml::isRow), WordXml::isCell);
        m_lineLoss = (std::max(widest, sideLines(first.child("w:tcPr").child("w:tcBorders"))) + 1) / 2;
    }
    return m_lineLoss;
}

// The widest line along one side of a row. The table's lines apply to cells without lines of their own.
int clsWordTableShape::lineAlong(const xml_node &row, const char *side, const char *sideOfTable) const
{
    int widest = 0;
    for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
         cell = WordXml::nextItem(cell, WordXml::isCell)) {
        xml_node line = cell.child("w:tcPr").child("w:tcBorders").child(side);
        if (!line)
            line = m_table.child("w:tblPr").child("w:tblBorders").child(sideOfTable);
        widest = std::max(widest, widthOfLine(line));
    }
    return widest;
}

// The line above a row reduces its height, as does the one below a table's last row.
int clsWordTableShape::heightOfLines(const xml_node &first, const xml_node &last)
{
    if (m_rowOfLineAbove != first) {
        m_rowOfLineAbove = first;
        m_lineAbove = lineAlong(first, "w:top", WordXml::previousItem(first, WordXml::isRow) ? "w:insideH" : "w:top");
    }
    const bool endsTable = !WordXml::nextItem(last, WordXml::isRow);
    return m_lineAbove + (endsTable ? lineAlong(last, "w:bottom", "w:bottom") : 0);
}
