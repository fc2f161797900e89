#pragma once

#include "editors/clsScreenTable.h"

/// Sets a field to its value in the editor of a new item.
void mdClearControl(const clsScreenRow &row, QWidget &control);
