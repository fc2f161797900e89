#pragma once

#include <qnamespace.h>

class clsZR3FeeEarner;

/// A kind of communication as it is counted in the grid: by a key, or by a right click in its column.
struct clsCommsCount {
    int key;
    const char *count; ///< the fee earner's property
    int column; ///< of the grid, from 1
    const char *field; ///< of the typed entry
};

/// What one key press or right click does.
struct clsCommsStep {
    int by;
    const char *sound; ///< beside the program
};

/// The kind that a key counts, or that stands in a column; nothing for any other key or column.
const clsCommsCount *mdCommsCountOfKey(int key);
const clsCommsCount *mdCommsCountAtColumn(int column);

/// Up, or down while Shift alone is held.
const clsCommsStep &mdCommsStep(Qt::KeyboardModifiers shift);

/// Changes the fee earner's count by a step; it doesn't go below 0, and beyond 32 bits it is the overflow error.
void mdCountComms(clsZR3FeeEarner &feeEarner, const clsCommsCount &count, int by);
