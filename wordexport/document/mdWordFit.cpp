#include "wordexport/document/mdWordFit.h"

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <optional>
#include <tuple>

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

bool grow(const xml_node &row)
{
    if (!mayGrow(row))
        return false;
    if (isExact(row))
        heightOf(row).attribute("w:hRule").set_value("atLeast");
    return true;
}

// What a cell says of itself, as far as it matters here.
struct clsCellProperties {
    explicit clsCellProperties(const xml_node &cell)
    {
        const auto found = WordXml::firstChildren<5>(
            cell.child("w:tcPr"), {"w:tcW", "w:gridSpan", "w:vMerge", "w:tcMar", "w:textDirection"});
        std::tie(width, span, merge, margins, direction) = std::tuple_cat(found);
    }
    int columns() const { return span ? std::max(1, span.attribute("w:val").as_int(1)) : 1; }

    xml_node width;
    xml_node span;
    xml_node merge;
    xml_node margins;
    xml_node direction;
};

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
        at += clsCellProperties(cell).columns();
    }
    return {};
}

// The widest line at a side of a cell, in twips.
int widestSideLine(const xml_node &borders)
{
    int eighths = 0;
    if (!borders)
        return eighths;
    for (const char *side : {"w:left", "w:right", "w:start", "w:end", "w:insideV"})
        eighths = std::max(eighths, borders.child(side).attribute("w:sz").as_int());
    return eighths * 20 / 8;
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
        , m_style(WordXml::val(table.child("w:tblPr").child("w:tblStyle")))
    {
        for (const xml_node &column : table.child("w:tblGrid").children("w:gridCol"))
            m_columns.push_back(column.attribute("w:w").as_int());
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
        int gridColumn = row.child("w:trPr").child("w:gridBefore").attribute("w:val").as_int();
        int column = 1;
        for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
             cell = WordXml::nextItem(cell, WordXml::isCell), ++column) {
            const bool innerGrew = fitTablesIn(cell);
            if (innerGrew && grow(row))
                grew = true;
            const clsCellProperties properties(cell);
            if (clsWordCellText::holdsTyped(cell, m_typed)) {
                clsWordLooks::Margins margins = m_margins;
                margins.takeOver(clsWordLooks::Margins::saidBy(properties.margins));
                clsWordCellText text(cell, placeOf(properties, gridColumn, margins), m_looks, m_typed);
                const auto texts = text.typedTexts();
                inGrid = inGrid || std::any_of(texts.begin(), texts.end(), [](const clsWordCellText::Typed &typed) {
                    return typed.placeholder.isEmpty();
                });
                const xml_node lastRow = lastRowOf(row, properties, gridColumn);
                if (fitCell(text, lastRow, roomOf(row, properties, lastRow, margins), gridRow, column))
                    grew = true;
            }
            gridColumn += properties.columns();
        }
        return grew;
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

    // True when the row had to grow. `room` is the height that the cell has, none where it may be of any.
    bool fitCell(clsWordCellText &text, const xml_node &lastRow, std::optional<int> room, int gridRow, int column)
    {
        if (!room)
            return false;
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

    clsWordCellText::Place placeOf(
        const clsCellProperties &properties, int gridColumn, const clsWordLooks::Margins &margins)
    {
        const xml_node said = properties.width;
        int width = std::strcmp(said.attribute("w:type").value(), "dxa") == 0 ? said.attribute("w:w").as_int() : 0;
        if (width <= 0)
            width = widthOfColumns(gridColumn, gridColumn + properties.columns());
        return {width - margins.left.value_or(0) - margins.right.value_or(0) - lineLoss(), m_style};
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
                for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
                     cell = WordXml::nextItem(cell, WordXml::isCell))
                    widest = std::max(widest, widestSideLine(cell.child("w:tcPr").child("w:tcBorders")));
            m_lineLoss = (widest + 1) / 2;
        }
        return m_lineLoss;
    }

    // The last row that a cell reaches down into.
    static xml_node lastRowOf(xml_node row, const clsCellProperties &properties, int gridColumn)
    {
        if (!properties.merge)
            return row;
        for (xml_node next = WordXml::nextItem(row, WordXml::isRow);
             next && isMergedIntoAbove(cellAt(next, gridColumn)); next = WordXml::nextItem(row, WordXml::isRow))
            row = next;
        return row;
    }

    static std::optional<int> roomOf(
        xml_node row, const clsCellProperties &properties, const xml_node &last, const clsWordLooks::Margins &margins)
    {
        if (properties.direction && std::strcmp(WordXml::val(properties.direction), "lrTb") != 0)
            return {};
        int room = -margins.top.value_or(0) - margins.bottom.value_or(0);
        for (;; row = WordXml::nextItem(row, WordXml::isRow)) {
            if (!isExact(row))
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
    std::string m_style;
    std::vector<int> m_columns;
    int m_lineLoss = -1;
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
