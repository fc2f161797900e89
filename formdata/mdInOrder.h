#pragma once

#include <algorithm>

/// A list of the claim as the user sees it: sorted by `OrderID`. Right after a deletion the order has gaps, which is
/// why it isn't walked by the numbers.
template <class Collection> Collection mdInOrder(const Collection &collection)
{
    Collection result = collection;
    std::stable_sort(
        result.begin(), result.end(), [](const auto &a, const auto &b) { return a->OrderID() < b->OrderID(); });
    return result;
}
