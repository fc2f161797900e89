#pragma once

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/clsWordLooks.h"

#include <pugixml.hpp>

#include <optional>
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

    clsWordCellText::Place placeOf(const pugi::xml_node &cell, int gridColumn);
    /// What its margins above and below take of a cell's height.
    int marginsOf(const pugi::xml_node &cell) const;
    /// The height that a cell has for its text; none where it may be of any.
    std::optional<int> roomOf(pugi::xml_node row, const pugi::xml_node &cell, int gridColumn) const;

private:
    clsWordLooks::Margins allMarginsOf(const pugi::xml_node &cell) const;
    int widthOfColumns(int from, int to) const;
    int lineLoss();

    pugi::xml_node m_table;
    clsWordLooks::Margins m_margins;
    std::vector<int> m_columns;
    int m_lineLoss = -1;
};
