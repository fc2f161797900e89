#pragma once

#include "wordexport/document/clsWordLooks.h"

#include <QRect>
#include <QString>

#include <pugixml.hpp>

#include <vector>

/// Where the cell of a placeholder is printed.
struct clsPlaceholderPlace {
    QString placeholder;
    QRect cell; ///< twips, from the corner of the paper
    QRect row; ///< the cell's table row
};

/// The places of the placeholders in the table cells of a body of one page. Available for the rows above the first one
/// that is not of exact height.
std::vector<clsPlaceholderPlace> mdPlaceholderPlaces(const pugi::xml_node &body, const clsWordLooks &looks);
