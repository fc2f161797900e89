#pragma once

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/clsWordLooks.h"

#include <pugixml.hpp>

#include <optional>
#include <set>
#include <vector>

/// The dimensions of a table: the widths of its cells and the permitted heights of its rows.
class clsWordTableShape {
public:
    clsWordTableShape(const pugi::xml_node &table, const clsWordLooks &looks);

    static pugi::xml_node heightOf(const pugi::xml_node &row);
    static bool isExact(const pugi::xml_node &row);
    /// The height set for a row, in twips.
    static int heightSaidBy(const pugi::xml_node &row);
    /// The grid column of a row's first cell, and the number of grid columns of a cell.
    static int firstColumnOf(const pugi::xml_node &row);
    static int spanOf(const pugi::xml_node &cell);
    static bool isMergedIntoAbove(const pugi::xml_node &cell);
    /// The last row of a cell merged over several rows.
    static pugi::xml_node lastRowOf(pugi::xml_node row, const pugi::xml_node &cell, int gridColumn);

    clsWordLooks::Margins marginsOf(const pugi::xml_node &cell) const;
    clsWordCellText::Place placeOf(const pugi::xml_node &cell, int gridColumn, const clsWordLooks::Margins &margins);
    /// The height available to the text of a cell, from its row to its last one; none if it is unlimited. A row that
    /// has grown counts with its old height, so that the order of the cells doesn't matter.
    std::optional<int> roomOf(pugi::xml_node row, const pugi::xml_node &last, const pugi::xml_node &cell,
        const clsWordLooks::Margins &margins);
    /// Allows a row of exact height to grow.
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
    pugi::xml_node m_rowOfLineAbove; ///< the row of the last look-up of a line above
    int m_lineAbove = 0;
    std::set<pugi::xml_node> m_grown;
};
