#pragma once

#include "controls/clsGridColumn.h"

#include <vector>

/// The widths of the columns of a grid that has so much room for them; 0 for those that have no place in it.
std::vector<int> mdGridWidths(const std::vector<clsGridColumn> &columns, int room);
