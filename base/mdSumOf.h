#pragma once

#include "base/Money.h"

#include <initializer_list>

/// The exact sum of some parts. A braced list is evaluated in order, unlike the operands of a plus, so the error is
/// always that of the first part that fails.
inline Money mdSumOf(std::initializer_list<Money> parts)
{
    Money total;
    for (const Money part : parts)
        total += part;
    return total;
}
