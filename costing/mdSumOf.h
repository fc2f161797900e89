#pragma once

#include "costing/Money.h"

/// The exact sum of one money field over a collection; a text that is no number is the type error.
template <class Collection, class Field> Money mdSumOf(const Collection &collection, Field field)
{
    Money total;
    for (const auto &item : collection)
        total = total + MoneyFromText(((*item).*field)());
    return total;
}
