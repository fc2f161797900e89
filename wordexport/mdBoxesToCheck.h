#pragma once

#include "costing/checking/clsCheckFacts.h"

struct clsForecast;

/// The boxes of a forecast, for the check of its claim: each with the screen of the text and, in a list, the item. A
/// calculated figure gets the screen of its main source.
std::vector<clsPrintedBox> mdBoxesToCheck(const clsForecast &forecast);
