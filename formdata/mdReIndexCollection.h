#pragma once

/// Sets each item's `Index` to its 1-based position in its collection.
template <class Collection> void ReIndexCollection(const Collection &collection)
{
    int index = 0;
    for (const auto &item : collection)
        item->Index = ++index;
}
