#pragma once

#include "controls/clsGridColumn.h"

#include <vector>

/// The widths of a grid's columns for an available width; 0 for those without room.
std::vector<int> mdGridWidths(const std::vector<clsGridColumn> &columns, int room);
