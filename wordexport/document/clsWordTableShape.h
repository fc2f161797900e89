#pragma once

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/clsWordLooks.h"

#include <pugixml.hpp>

#include <optional>
#include <set>
#include <vector>

/// The measures of a table: how wide its cells are and how high its rows may be.
class clsWordTableShape {
public:
    clsWordTableShape(const pugi::xml_node &table, const clsWordLooks &looks);

    static pugi::xml_node heightOf(const pugi::xml_node &row);
    static bool isExact(const pugi::xml_node &row);
    /// The height that a row says, in twips.
    static int heightSaidBy(const pugi::xml_node &row);
    /// The column of the grid in which a row's first cell stands, and how many of them a cell takes.
    static int firstColumnOf(const pugi::xml_node &row);
    static int spanOf(const pugi::xml_node &cell);
    static bool isMergedIntoAbove(const pugi::xml_node &cell);
    /// The last row that a cell reaches down into.
    static pugi::xml_node lastRowOf(pugi::xml_node row, const pugi::xml_node &cell, int gridColumn);

    clsWordLooks::Margins marginsOf(const pugi::xml_node &cell) const;
    clsWordCellText::Place placeOf(const pugi::xml_node &cell, int gridColumn, const clsWordLooks::Margins &margins);
    /// The height that a cell has for its text, from its row to the last one that it reaches into; none where it may be
    /// of any. A row that has been made to grow counts with its old height, whatever the order of its cells.
    std::optional<int> roomOf(pugi::xml_node row, const pugi::xml_node &last, const pugi::xml_node &cell,
        const clsWordLooks::Margins &margins);
    /// Lets a row of exact height become higher.
    void letGrow(const pugi::xml_node &row);

private:
    int asPrinted(int gridColumn, int width) const;
    int widthOfColumns(int from, int to) const;
    int lineLoss();
    int lineAlong(const pugi::xml_node &row, const char *side, const char *sideOfTable) const;
    int heightOfLines(const pugi::xml_node &first, const pugi::xml_node &last);

    pugi::xml_node m_table;
    clsWordLooks::Margins m_margins;
    std::vector<int> m_columns;
    int m_across = 0; ///< the width of all columns
    int m_lineLoss = -1;
    pugi::xml_node m_rowOfLineAbove; ///< the row whose line above was looked up last
    int m_lineAbove = 0;
    std::set<pugi::xml_node> m_grown;
};
