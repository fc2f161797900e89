#pragma once

#include "wordexport/document/clsWordLooks.h"

#include <pugixml.hpp>

/// The number of paper pages of a sheet's body when printed among others. Rows of exact height have that height; rows
/// that may grow are as high as their text. A row that must not be split starts a new page if it doesn't fit on the
/// present one, unless it is higher than a whole page.
int mdPaperPages(const pugi::xml_node &body, const clsWordLooks &looks);
