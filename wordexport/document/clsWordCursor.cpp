#include "wordexport/document/clsWordCursor.h"

#include "base/clsRunTimeError.h"
#include "wordexport/document/clsWordParagraph.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>

using pugi::xml_node;

namespace {

// The lower part of a cell merged over several rows: not a cell for the cursor.
bool isMergedIntoAbove(const xml_node &cell)
{
    const xml_node merge = cell.child("w:tcPr").child("w:vMerge");
    return merge && std::strcmp(WordXml::val(merge), "restart") != 0;
}

xml_node firstOwnCell(const xml_node &row)
{
    xml_node cell = WordXml::firstItem(row, WordXml::isCell);
    while (cell && isMergedIntoAbove(cell))
        cell = WordXml::nextItem(cell, WordXml::isCell);
    return cell;
}

// More than any table has; a file that claims more must not make the count overflow.
constexpr int MostColumns = 1000;

int spanOf(const xml_node &cell)
{
    return std::clamp(cell.child("w:tcPr").child("w:gridSpan").attribute("w:val").as_int(1), 1, MostColumns);
}

int columnsBefore(const xml_node &row)
{
    return std::clamp(row.child("w:trPr").child("w:gridBefore").attribute("w:val").as_int(0), 0, MostColumns);
}

// Columns of the table's grid, not the number of cells: a row may have one wide cell where others have several.
int columnOf(const xml_node &cell)
{
    const xml_node row = WordXml::containerOf(cell);
    int column = columnsBefore(row);
    for (xml_node before = WordXml::firstItem(row, WordXml::isCell); before && before != cell;
         before = WordXml::nextItem(before, WordXml::isCell))
        column += spanOf(before);
    return column;
}

// The row's cell that covers a column; the first or last cell for a column before or after all cells.
xml_node cellAtColumn(const xml_node &row, int column)
{
    int end = columnsBefore(row);
    xml_node last;
    for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
         cell = WordXml::nextItem(cell, WordXml::isCell)) {
        end += spanOf(cell);
        last = cell;
        if (column < end)
            break;
    }
    return last;
}

} // namespace

clsWordCursor::clsWordCursor(const xml_node &body)
    : m_body(body)
{
    goToStart();
}

void clsWordCursor::select(const xml_node &paragraph, int from, int to)
{
    m_paragraph = paragraph;
    m_from = from;
    m_to = to;
    m_selectedCell = {};
    m_column = -1;
}

void clsWordCursor::goToStart()
{
    place(enterContainer(m_body), 0);
}

void clsWordCursor::goToEnd()
{
    xml_node last = WordXml::lastItem(m_body, WordXml::isBlock);
    if (!last)
        last = enterContainer(m_body);
    else if (WordXml::is(last, "w:tbl")) // a story ends with a paragraph; add a missing one
        last = WordXml::insertTinyParagraph(last.parent(), last);
    place(last, clsWordParagraph(last).length());
}

bool clsWordCursor::nextLineOfParagraph()
{
    const clsWordParagraph paragraph(m_paragraph);
    const size_t lineBreak = paragraph.text().find(clsWordParagraph::LineBreak, size_t(m_to));
    if (lineBreak == std::string::npos)
        return false;
    placeKeepingColumn(m_paragraph, int(lineBreak) + 1);
    return true;
}

void clsWordCursor::placeKeepingColumn(const xml_node &paragraph, int at)
{
    const int column = m_column;
    place(paragraph, at);
    m_column = column;
}

void clsWordCursor::lineDown()
{
    if (m_selectedCell)
        if (const xml_node last = WordXml::lastItem(m_selectedCell, WordXml::isBlock); WordXml::is(last, "w:p"))
            place(last, clsWordParagraph(last).length());
    if (nextLineOfParagraph())
        return;
    if (const xml_node below = paragraphBelow())
        placeKeepingColumn(below, 0);
}

xml_node clsWordCursor::paragraphBelow()
{
    xml_node block = m_paragraph;
    for (;;) {
        for (xml_node next = WordXml::nextItem(block, WordXml::isBlock); next;
             next = WordXml::nextItem(next, WordXml::isBlock)) {
            if (WordXml::is(next, "w:tbl"))
                m_column = -1; // a table is entered at its first cell
            if (const xml_node paragraph = enterBlock(next))
                return paragraph;
        }
        const xml_node cell = WordXml::containerOf(block);
        if (!WordXml::isCell(cell))
            return {};
        if (const xml_node below = cellBelow(cell))
            return enterContainer(below);
        m_column = -1;
        block = WordXml::containerOf(WordXml::containerOf(cell));
    }
}

xml_node clsWordCursor::cellBelow(const xml_node &cell)
{
    if (m_column < 0)
        m_column = columnOf(cell);
    for (xml_node row = WordXml::nextItem(WordXml::containerOf(cell), WordXml::isRow); row;
         row = WordXml::nextItem(row, WordXml::isRow)) {
        const xml_node below = cellAtColumn(row, m_column);
        if (below && !isMergedIntoAbove(below))
            return below;
    }
    return {};
}

// The first paragraph of a block; a null node for a table without cells.
xml_node clsWordCursor::enterBlock(xml_node block)
{
    if (WordXml::is(block, "w:p"))
        return block;
    for (xml_node row = WordXml::firstItem(block, WordXml::isRow); row; row = WordXml::nextItem(row, WordXml::isRow))
        if (const xml_node cell = firstOwnCell(row))
            return enterContainer(cell);
    return {};
}

// The first paragraph of a cell or of the body; added if there is none.
xml_node clsWordCursor::enterContainer(xml_node container)
{
    for (xml_node block = WordXml::firstItem(container, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock))
        if (const xml_node paragraph = enterBlock(block))
            return paragraph;
    const xml_node section = container.child("w:sectPr");
    return section ? container.insert_child_before("w:p", section) : container.append_child("w:p");
}

void clsWordCursor::cellRight()
{
    const xml_node cell = WordXml::ancestor(m_paragraph, "w:tc");
    if (!cell)
        throw clsRunTimeError(clsRunTimeError::InvalidProcedureCall,
            QStringLiteral("The cursor is not in a table, so that it can't move to another cell."));
    xml_node right = WordXml::nextItem(cell, WordXml::isCell);
    while (right && isMergedIntoAbove(right))
        right = WordXml::nextItem(right, WordXml::isCell);
    for (xml_node row = WordXml::nextItem(WordXml::containerOf(cell), WordXml::isRow); row && !right;
         row = WordXml::nextItem(row, WordXml::isRow))
        right = firstOwnCell(row);
    if (right)
        selectCell(right);
    else
        place(m_paragraph, m_to);
}

void clsWordCursor::selectCell(const xml_node &cell)
{
    const xml_node paragraph = enterContainer(cell);
    select(paragraph, 0, clsWordParagraph(paragraph).length());
    m_selectedCell = cell;
}

void clsWordCursor::rowStart()
{
    const xml_node cell = WordXml::ancestor(m_paragraph, "w:tc");
    if (!cell)
        return;
    if (const xml_node first = firstOwnCell(WordXml::containerOf(cell)))
        place(enterContainer(first), 0);
}
