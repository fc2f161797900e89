#include "wordexport/document/mdWordFit.h"

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <optional>
#include <set>

using pugi::xml_node;

namespace {

xml_node heightOf(const xml_node &row)
{
    return row.child("w:trPr").child("w:trHeight");
}

bool isExact(const xml_node &row)
{
    return std::strcmp(heightOf(row).attribute("w:hRule").value(), "exact") == 0;
}

// A row in a content control whose content is locked is told not to change.
bool mayGrow(const xml_node &row)
{
    for (xml_node around = row.parent(); WordXml::isWrapper(around); around = around.parent()) {
        const char *lock = WordXml::val(around.child("w:sdtPr").child("w:lock"));
        if (std::strcmp(lock, "contentLocked") == 0 || std::strcmp(lock, "sdtContentLocked") == 0)
            return false;
    }
    return true;
}

int spanOf(const xml_node &cell)
{
    return std::max(1, cell.child("w:tcPr").child("w:gridSpan").attribute("w:val").as_int(1));
}

bool isMergedIntoAbove(const xml_node &cell)
{
    const xml_node merge = cell.child("w:tcPr").child("w:vMerge");
    return merge && std::strcmp(WordXml::val(merge), "restart") != 0;
}

xml_node cellAt(const xml_node &row, int column)
{
    int at = row.child("w:trPr").child("w:gridBefore").attribute("w:val").as_int();
    for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
         cell = WordXml::nextItem(cell, WordXml::isCell)) {
        if (at == column)
            return cell;
        at += spanOf(cell);
    }
    return {};
}

// In twips; the file has eighths of a point.
int widthOfLine(const xml_node &line)
{
    return line.attribute("w:sz").as_int() * 20 / 8;
}

int widestSideLine(const xml_node &borders)
{
    int widest = 0;
    for (const char *side : {"w:left", "w:right", "w:start", "w:end", "w:insideV"})
        widest = std::max(widest, widthOfLine(borders.child(side)));
    return widest;
}

// Fits the rows of one table.
class clsTableFitter {
public:
    clsTableFitter(
        const xml_node &table, const clsWordLooks &looks, clsWordTyped &typed, std::vector<clsFittedText> &fitted)
        : m_table(table)
        , m_looks(looks)
        , m_typed(typed)
        , m_fitted(fitted)
        , m_margins(looks.ofCells(table))
    {
        for (const xml_node &column : table.child("w:tblGrid").children("w:gridCol"))
            m_columns.push_back(column.attribute("w:w").as_int());
        m_across = widthOfColumns(0, int(m_columns.size()));
    }

    /// True when a row had to grow, so that one around the table has to as well.
    bool fit()
    {
        bool grew = false;
        int gridRow = 0;
        for (xml_node row = WordXml::firstItem(m_table, WordXml::isRow); row;
             row = WordXml::nextItem(row, WordXml::isRow)) {
            bool inGrid = false;
            const bool rowGrew = fitRow(row, gridRow + 1, inGrid);
            grew = grew || rowGrew;
            gridRow = inGrid ? gridRow + 1 : 0;
        }
        return grew;
    }

private:
    bool fitRow(const xml_node &row, int gridRow, bool &inGrid)
    {
        bool grew = false;
        m_lineAbove = -1;
        int gridColumn = row.child("w:trPr").child("w:gridBefore").attribute("w:val").as_int();
        int column = 1;
        for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
             cell = WordXml::nextItem(cell, WordXml::isCell), ++column) {
            const bool innerGrew = fitTablesIn(cell);
            if (innerGrew && grow(row))
                grew = true;
            if (const clsWordTyped::Mark *mark = clsWordCellText::firstTyped(cell, m_typed)) {
                inGrid = inGrid || mark->placeholder.isEmpty();
                if (fitCell(row, cell, gridColumn, gridRow, column))
                    grew = true;
            }
            gridColumn += spanOf(cell);
        }
        return grew;
    }

    bool grow(const xml_node &row)
    {
        if (!mayGrow(row))
            return false;
        if (isExact(row)) {
            heightOf(row).attribute("w:hRule").set_value("atLeast");
            m_grown.insert(row);
        }
        return true;
    }

    bool fitTablesIn(const xml_node &cell)
    {
        bool grew = false;
        for (xml_node block = WordXml::firstItem(cell, WordXml::isBlock); block;
             block = WordXml::nextItem(block, WordXml::isBlock))
            if (WordXml::is(block, "w:tbl"))
                grew = clsTableFitter(block, m_looks, m_typed, m_fitted).fit() || grew;
        return grew;
    }

    // True when the row had to grow.
    bool fitCell(const xml_node &row, const xml_node &cell, int gridColumn, int gridRow, int column)
    {
        clsWordLooks::Margins margins = m_margins;
        if (const xml_node own = cell.child("w:tcPr").child("w:tcMar"))
            margins.takeOver(clsWordLooks::Margins::saidBy(own));
        const xml_node lastRow = lastRowOf(row, cell, gridColumn);
        const std::optional<int> room = roomOf(row, lastRow, cell, margins); // none where any height will do
        if (!room)
            return false;
        const clsWordCellText::Place place = placeOf(cell, gridColumn, margins);
        if (clsWordCellText::fitsAtAGlance(cell, place, *room, m_looks, m_typed))
            return false;
        clsWordCellText text(cell, place, m_looks, m_typed);
        const clsWordCellText::Measure own = text.measure(0);
        const bool fits = own.height <= *room && !own.tooNarrow;
        if (fits && own.brokenWords == 0)
            return false;
        const int most = text.mostLess();
        const clsWordCellText::Measure smallest = text.measure(most);
        int less = 0;
        clsWordCellText::Measure now = own;
        while (less < most && !isAsGood(now, smallest, *room))
            now = text.measure(++less);
        const bool inRoom = now.height <= *room && !now.tooNarrow;
        if (less == 0 && inRoom)
            return false; // a word that no size keeps in one piece
        if (less > 0)
            text.shrink(less);
        clsFittedText::State state = clsFittedText::Smaller;
        if (!inRoom)
            state = grow(lastRow) && !now.tooNarrow ? clsFittedText::RunsOn : clsFittedText::Cut;
        for (const clsWordCellText::Typed &typed : text.typedTexts()) {
            const bool inGrid = typed.placeholder.isEmpty();
            m_fitted.push_back({typed.placeholder, inGrid ? gridRow : 0, inGrid ? column : 0, typed.halfPoints,
                clsWordCellText::shrunk(typed.halfPoints, less), own.lines, now.lines, state});
        }
        return !inRoom;
    }

    static bool isAsGood(const clsWordCellText::Measure &now, const clsWordCellText::Measure &smallest, int room)
    {
        return now.height <= room && now.brokenWords <= smallest.brokenWords
            && now.brokenAmounts <= smallest.brokenAmounts && !now.tooNarrow;
    }

    clsWordCellText::Place placeOf(const xml_node &cell, int gridColumn, const clsWordLooks::Margins &margins)
    {
        const xml_node properties = cell.child("w:tcPr");
        const xml_node said = properties.child("w:tcW");
        int width = std::strcmp(said.attribute("w:type").value(), "dxa") == 0 ? said.attribute("w:w").as_int() : 0;
        if (width <= 0)
            width = widthOfColumns(gridColumn, gridColumn + spanOf(cell));
        width = asPrinted(gridColumn, width);
        return {width - margins.left.value_or(0) - margins.right.value_or(0) - lineLoss(),
            WordXml::val(m_table.child("w:tblPr").child("w:tblStyle"))};
    }

    // The word processor that prints the forms keeps where cells begin and end in ten-thousandths of their table's
    // width.
    int asPrinted(int gridColumn, int width) const
    {
        constexpr int Parts = 10000;
        const int all = m_across;
        if (all <= 0)
            return width;
        const auto part = [all](int twips) { return (qint64(twips) * Parts + all / 2) / all; };
        const int left = widthOfColumns(0, gridColumn);
        return int(((part(left + width) - part(left)) * all + Parts - 1) / Parts);
    }

    int widthOfColumns(int from, int to) const
    {
        int width = 0;
        for (int i = from; i < std::min(to, int(m_columns.size())); ++i)
            width += m_columns[size_t(i)];
        return width;
    }

    // Half of its outer lines' width is lost to each cell of a table.
    int lineLoss()
    {
        if (m_lineLoss < 0) {
            int widest = widestSideLine(m_table.child("w:tblPr").child("w:tblBorders"));
            for (xml_node row = WordXml::firstItem(m_table, WordXml::isRow); row;
                 row = WordXml::nextItem(row, WordXml::isRow))
                for (const xml_node &cell :
                    {WordXml::firstItem(row, WordXml::isCell), WordXml::lastItem(row, WordXml::isCell)})
                    widest = std::max(widest, widestSideLine(cell.child("w:tcPr").child("w:tcBorders")));
            m_lineLoss = (widest + 1) / 2;
        }
        return m_lineLoss;
    }

    // The last row that a cell reaches down into.
    static xml_node lastRowOf(xml_node row, const xml_node &cell, int gridColumn)
    {
        if (!cell.child("w:tcPr").child("w:vMerge"))
            return row;
        for (xml_node next = WordXml::nextItem(row, WordXml::isRow);
             next && isMergedIntoAbove(cellAt(next, gridColumn)); next = WordXml::nextItem(row, WordXml::isRow))
            row = next;
        return row;
    }

    // The widest line along one side of a row. A table's own lines are those of cells that say nothing of theirs.
    int lineAlong(const xml_node &row, const char *side, const char *sideOfTable) const
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

    // The line above a row takes its room from it, and so does the one below a table's last row.
    int heightOfLines(const xml_node &first, const xml_node &last)
    {
        if (m_lineAbove < 0)
            m_lineAbove
                = lineAlong(first, "w:top", WordXml::previousItem(first, WordXml::isRow) ? "w:insideH" : "w:top");
        const bool endsTable = !WordXml::nextItem(last, WordXml::isRow);
        return m_lineAbove + (endsTable ? lineAlong(last, "w:bottom", "w:bottom") : 0);
    }

    std::optional<int> roomOf(
        xml_node row, const xml_node &last, const xml_node &cell, const clsWordLooks::Margins &margins)
    {
        const xml_node direction = cell.child("w:tcPr").child("w:textDirection");
        if (direction && std::strcmp(WordXml::val(direction), "lrTb") != 0)
            return {};
        int room = -margins.top.value_or(0) - margins.bottom.value_or(0) - heightOfLines(row, last);
        for (;; row = WordXml::nextItem(row, WordXml::isRow)) {
            if (!isExact(row) && !m_grown.contains(row))
                return {};
            room += heightOf(row).attribute("w:val").as_int();
            if (row == last)
                return room;
        }
    }

    xml_node m_table;
    const clsWordLooks &m_looks;
    clsWordTyped &m_typed;
    std::vector<clsFittedText> &m_fitted;
    clsWordLooks::Margins m_margins;
    std::vector<int> m_columns;
    int m_across = 0; ///< the width of all columns
    int m_lineLoss = -1;
    int m_lineAbove = -1; ///< of the row in hand; not looked up yet where negative
    /// Rows that a cell has made to grow. What fits their old height is still laid out in it, whatever the order of the
    /// cells.
    std::set<xml_node> m_grown;
};

} // namespace

std::vector<clsFittedText> mdFitTypedText(const xml_node &body, const clsWordLooks &looks, clsWordTyped &typed)
{
    std::vector<clsFittedText> fitted;
    if (typed.isEmpty())
        return fitted;
    for (xml_node block = WordXml::firstItem(body, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock))
        if (WordXml::is(block, "w:tbl"))
            clsTableFitter(block, looks, typed, fitted).fit();
    return fitted;
}
