#include "wordexport/document/mdWordFit.h"

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/clsWordTableShape.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <optional>

using pugi::xml_node;

namespace {

// A row in a content control with locked content must not change.
bool mayGrow(const xml_node &row)
{
    for (xml_node around = row.parent(); WordXml::isWrapper(around); around = around.parent()) {
        const char *lock = WordXml::val(around.child("w:sdtPr").child("w:lock"));
        if (std::strcmp(lock, "contentLocked") == 0 || std::strcmp(lock, "sdtContentLocked") == 0)
            return false;
    }
    return true;
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
        , m_shape(table, looks)
    { }

    /// True if a row had to grow, so that an enclosing row must too.
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
        int gridColumn = clsWordTableShape::firstColumnOf(row);
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
            gridColumn += clsWordTableShape::spanOf(cell);
        }
        return grew;
    }

    bool grow(const xml_node &row)
    {
        if (!mayGrow(row))
            return false;
        m_shape.letGrow(row);
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

    // True if the row had to grow.
    bool fitCell(const xml_node &row, const xml_node &cell, int gridColumn, int gridRow, int column)
    {
        const clsWordLooks::Margins margins = m_shape.marginsOf(cell);
        const xml_node lastRow = clsWordTableShape::lastRowOf(row, cell, gridColumn);
        const std::optional<int> room = m_shape.roomOf(row, lastRow, cell, margins); // none if the height is unlimited
        if (!room)
            return false;
        const clsWordCellText::Place place = m_shape.placeOf(cell, gridColumn, margins);
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
            return false; // no size keeps this word in one piece
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

    xml_node m_table;
    const clsWordLooks &m_looks;
    clsWordTyped &m_typed;
    std::vector<clsFittedText> &m_fitted;
    clsWordTableShape m_shape;
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
