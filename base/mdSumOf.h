#pragma once

#include "base/Money.h"

#include <initializer_list>

/// The exact sum of some parts. A braced list is computed from its first part to its last, which operands of a plus are
/// not: so the error of a sum is that of the first part that fails.
inline Money mdSumOf(std::initializer_list<Money> parts)
{
    Money total;
    for (const Money part : parts)
        total += part;
    return total;
}
