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
    QRect row; ///< of the table that the cell stands in
};

/// The places of the placeholders in the table cells of a body that takes one page. They are known as far down as the
/// rows are of exact height.
std::vector<clsPlaceholderPlace> mdPlaceholderPlaces(const pugi::xml_node &body, const clsWordLooks &looks);
