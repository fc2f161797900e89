#pragma once

#include "costing/Money.h"
#include "costing/mdFigureFaults.h"

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

/// The exact sum of one money field over items of a claim; a text that is no number is the type error.
template <class Collection, class Field>
Money mdSumOf(const clsZR3Form &form, const Collection &collection, Field field)
{
    Money total;
    for (const auto &item : collection)
        total = total + mdExplained(form, *item, [&] { return MoneyFromText(((*item).*field)()); });
    return total;
}
