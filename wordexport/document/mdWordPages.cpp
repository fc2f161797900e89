#include "wordexport/document/mdWordPages.h"

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/clsWordTableShape.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <numeric>
#include <vector>

using pugi::xml_node;

namespace {

using Heights = std::vector<int>; // of lines, from the top

/// A column of text beside others.
struct Column {
    Heights lines;
    int again = 0; ///< the space above that it has again on each further page

    int height() const { return std::accumulate(lines.begin(), lines.end(), 0); }
};

struct PageSize {
    int width;
    int height;

    static PageSize of(const xml_node &section)
    {
        const auto twips = [](const pugi::xml_attribute &said, int otherwise) {
            constexpr int Longest = 100'000; // more than any page has
            return std::clamp(said.as_int(otherwise), -Longest, Longest);
        };
        constexpr int A4Width = 11906;
        constexpr int A4Height = 16838;
        const xml_node size = section.child("w:pgSz");
        const xml_node margins = section.child("w:pgMar");
        return {twips(size.attribute("w:w"), A4Width) - twips(margins.attribute("w:left"), 0)
                - twips(margins.attribute("w:right"), 0),
            twips(size.attribute("w:h"), A4Height) - std::abs(twips(margins.attribute("w:top"), 0))
                - std::abs(twips(margins.attribute("w:bottom"), 0))};
    }
};

class clsPages {
public:
    explicit clsPages(int height)
        : m_height(height)
    { }

    int count() const { return m_count; }
    int height() const { return m_height; }

    void begin()
    {
        ++m_count;
        m_used = 0;
    }

    void place(int height)
    {
        if (m_used > 0 && m_used + height > m_height)
            begin();
        m_used += height;
    }

    // Adds height without moving anything to the next page.
    void add(int height) { m_used += height; }

    // Places columns side by side, each with as many of its lines on a page as fit.
    void placeSplit(const std::vector<Column> &columns)
    {
        std::vector<size_t> next(columns.size(), 0);
        for (bool all = false; !all;) {
            all = true;
            int taken = 0;
            for (size_t i = 0; i < columns.size(); ++i) {
                const Heights &lines = columns[i].lines;
                int column = next[i] == 0 || next[i] == lines.size() ? 0 : columns[i].again;
                const size_t first = next[i];
                // An empty page always takes a line.
                while (next[i] < lines.size()
                    && (m_used + column + lines[next[i]] <= m_height || (m_used == 0 && next[i] == first)))
                    column += lines[next[i]++];
                taken = std::max(taken, column);
                all = all && next[i] == lines.size();
            }
            m_used += taken;
            if (!all)
                begin();
        }
    }

private:
    int m_height;
    qint64 m_used = 0;
    int m_count = 1;
};

// Places the rows of one table.
class clsTablePlacer {
public:
    clsTablePlacer(const xml_node &table, const clsWordLooks &looks, clsPages &pages)
        : m_table(table)
        , m_looks(looks)
        , m_pages(pages)
        , m_shape(table, looks)
        , m_mayGrow(hasGrowingRow(table))
    { }

    void place()
    {
        xml_node above;
        for (xml_node row = WordXml::firstItem(m_table, WordXml::isRow); row;
             row = WordXml::nextItem(row, WordXml::isRow)) {
            placeRow(row, above);
            above = row;
        }
        m_pages.add(widestLine(above, "w:bottom", "w:bottom"));
    }

private:
    static bool hasGrowingRow(const xml_node &table)
    {
        xml_node row = WordXml::firstItem(table, WordXml::isRow);
        while (row && clsWordTableShape::isExact(row))
            row = WordXml::nextItem(row, WordXml::isRow);
        return bool(row);
    }

    void placeRow(const xml_node &row, const xml_node &above)
    {
        const int said = clsWordTableShape::heightSaidBy(row);
        if (clsWordTableShape::isExact(row)) {
            if (m_mayGrow)
                noteReaching(row);
            m_pages.place(said);
            m_above += said;
            return;
        }
        std::vector<Column> columns = columnsOf(row);
        // The line above a row of exact height is part of that height; for other rows it is added to the text.
        const int line = above
            ? std::max(widestLine(above, "w:bottom", "w:insideH"), widestLine(row, "w:top", "w:insideH"))
            : widestLine(row, "w:top", "w:top");
        int height = said;
        for (Column &column : columns) {
            if (!column.lines.empty())
                column.lines.front() += line;
            column.again += line;
            height = std::max(height, column.height());
        }
        const bool splits = !row.child("w:trPr").child("w:cantSplit") || height > m_pages.height();
        if (splits)
            m_pages.placeSplit(height > said ? columns : std::vector<Column> {{{height}}});
        else
            m_pages.place(height);
        m_above += height;
    }

    // The widest line at a side of a row's cells, in twips.
    int widestLine(const xml_node &row, const char *side, const char *sideOfTable) const
    {
        static constexpr int Widest = 96; // eighths of a point
        const auto widthOf = [](const xml_node &line) {
            const char *kind = WordXml::val(line);
            const bool none = std::strcmp(kind, "nil") == 0 || std::strcmp(kind, "none") == 0;
            return none ? 0 : std::clamp(line.attribute("w:sz").as_int(), 0, Widest);
        };
        int eighths = 0;
        for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
             cell = WordXml::nextItem(cell, WordXml::isCell)) {
            const xml_node said = cell.child("w:tcPr").child("w:tcBorders").child(side);
            const xml_node line = said ? said : m_table.child("w:tblPr").child("w:tblBorders").child(sideOfTable);
            eighths = std::max(eighths, widthOf(line));
        }
        return eighths * 20 / 8;
    }

    template <class Visitor> static void visitCells(const xml_node &row, const Visitor &visitor)
    {
        int gridColumn = clsWordTableShape::firstColumnOf(row);
        for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
             cell = WordXml::nextItem(cell, WordXml::isCell)) {
            visitor(cell, gridColumn, clsWordTableShape::lastRowOf(row, cell, gridColumn) == row);
            gridColumn += clsWordTableShape::spanOf(cell);
        }
    }

    // Records the cells merged over several rows whose last row may grow.
    void noteReaching(const xml_node &row)
    {
        visitCells(row, [&](const xml_node &cell, int gridColumn, bool endsHere) {
            if (!endsHere && !clsWordTableShape::isMergedIntoAbove(cell))
                m_reaching[gridColumn] = {linesOf(cell, gridColumn), m_above};
        });
    }

    // The lines of a row's cells. A cell merged over several rows makes the last of them grow.
    std::vector<Column> columnsOf(const xml_node &row)
    {
        noteReaching(row);
        std::vector<Column> columns;
        visitCells(row, [&](const xml_node &cell, int gridColumn, bool endsHere) {
            if (endsHere)
                columns.push_back(
                    clsWordTableShape::isMergedIntoAbove(cell) ? restOf(gridColumn) : linesOf(cell, gridColumn));
        });
        return columns;
    }

    Column linesOf(const xml_node &cell, int gridColumn)
    {
        const clsWordLooks::Margins margins = m_shape.marginsOf(cell);
        const clsWordCellText text(cell, m_shape.placeOf(cell, gridColumn, margins), m_looks, m_typed);
        Column column {text.lineHeights(), text.spaceAbove()};
        if (!column.lines.empty())
            column.lines.back() += margins.top.value_or(0) + margins.bottom.value_or(0);
        return column;
    }

    // The lines of a cell that started above, less those that fit in the rows before its last one.
    Column restOf(int gridColumn)
    {
        const auto reaching = m_reaching.find(gridColumn);
        if (reaching == m_reaching.end())
            return {};
        const Column column = std::move(reaching->second.text);
        const Heights &lines = column.lines;
        qint64 room = m_above - reaching->second.from;
        m_reaching.erase(reaching);
        auto left = lines.begin();
        while (left != lines.end() && *left <= room)
            room -= *left++;
        Heights rest {left, lines.end()};
        if (!rest.empty())
            rest.front() -= int(room);
        return {std::move(rest), column.again};
    }

    struct Reaching {
        Column text;
        qint64 from; ///< the height of the rows above its first one
    };

    xml_node m_table;
    const clsWordLooks &m_looks;
    clsPages &m_pages;
    clsWordTableShape m_shape;
    bool m_mayGrow; ///< if no row may grow, the text of the cells makes no difference
    clsWordTyped m_typed; // stays empty: template and typed text are measured alike
    std::map<int, Reaching> m_reaching; // by column
    qint64 m_above = 0;
};

bool hasPageBreak(const xml_node &paragraph)
{
    return paragraph.find_node([](const xml_node &node) {
        return WordXml::is(node, "w:br") && std::strcmp(node.attribute("w:type").value(), "page") == 0;
    });
}

void placeParagraph(const xml_node &paragraph, const clsWordLooks &looks, int width, clsPages &pages)
{
    if (paragraph.child("w:pPr").child("w:pageBreakBefore"))
        pages.begin();
    clsWordTyped none;
    pages.placeSplit({{clsWordCellText::ofParagraph(paragraph, {width, {}}, looks, none).lineHeights()}});
    if (hasPageBreak(paragraph) || paragraph.child("w:pPr").child("w:sectPr"))
        pages.begin();
}

// An empty paragraph after another one at the end of a sheet disappears when the sheets are joined: it is replaced with
// the end of the section or deleted.
bool goesInJoining(const xml_node &block)
{
    return WordXml::is(block, "w:p") && WordXml::is(WordXml::previousItem(block, WordXml::isBlock), "w:p")
        && !WordXml::nextItem(block, WordXml::isBlock) && !WordXml::firstItem(block, WordXml::isRun);
}

} // namespace

int mdPaperPages(const xml_node &body, const clsWordLooks &looks)
{
    const PageSize size = PageSize::of(body.child("w:sectPr"));
    clsPages pages(size.height);
    for (xml_node block = WordXml::firstItem(body, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock)) {
        if (WordXml::is(block, "w:tbl"))
            clsTablePlacer(block, looks, pages).place();
        else if (!goesInJoining(block))
            placeParagraph(block, looks, size.width, pages);
    }
    return pages.count();
}
