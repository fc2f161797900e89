#pragma once

#include "editors/clsScreenTable.h"

/// Gives a field what it has in the editor of a new item.
void mdClearControl(const clsScreenRow &row, QWidget &control);
