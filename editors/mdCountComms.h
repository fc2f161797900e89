#pragma once

#include <qnamespace.h>

class clsZR3FeeEarner;

/// A kind of communication, counted in the grid by a key or by a right click in its column.
struct clsCommsCount {
    int key;
    const char *count; ///< the fee earner's property
    int column; ///< of the grid, from 1
    const char *field; ///< in the editor of counts
};

/// The effect of one key press or right click.
struct clsCommsStep {
    int by;
    const char *sound; ///< in the program folder
};

/// The kind for a key or a column; null for any other.
const clsCommsCount *mdCommsCountOfKey(int key);
const clsCommsCount *mdCommsCountAtColumn(int column);

/// Up, or down if only Shift is held.
const clsCommsStep &mdCommsStep(Qt::KeyboardModifiers shift);

/// Changes the fee earner's count by a step. It doesn't go below 0 or above the largest 32-bit number.
void mdCountComms(clsZR3FeeEarner &feeEarner, const clsCommsCount &count, int by);
