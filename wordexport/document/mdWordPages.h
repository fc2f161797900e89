#pragma once

#include "wordexport/document/clsWordLooks.h"

#include <pugixml.hpp>

/// How many paper pages the body of a sheet takes when it is printed among others. Rows of exact height are as high as
/// they say; one that may grow is as high as its text. A row that may not be split begins a page where it would run
/// over the edge, unless it is higher than a whole page.
int mdPaperPages(const pugi::xml_node &body, const clsWordLooks &looks);
