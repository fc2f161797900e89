#pragma once

#include "base/Money.h"
#include "costing/mdFigureFaults.h"

/// The exact sum of one money field over items of a claim; text that is not a number is the type error.
template <class Collection, class Field>
Money mdSumOfField(const clsZR3Form &form, const Collection &collection, Field field)
{
    Money total;
    for (const auto &item : collection)
        total = total + mdExplained(form, *item, [&] { return MoneyFromText(((*item).*field)()); });
    return total;
}
