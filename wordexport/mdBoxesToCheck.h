#pragma once

#include "costing/checking/clsCheckFacts.h"

struct clsForecast;

/// What a forecast says of boxes, for the check of its claim: each with the screen that holds the text, and in a list
/// with the item. A figure that is worked out has the screen that most of it comes from.
std::vector<clsPrintedBox> mdBoxesToCheck(const clsForecast &forecast);
