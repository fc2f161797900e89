#pragma once

/// Writes each item's 1-based place in its collection into its `Index`.
template <class Collection> void ReIndexCollection(const Collection &collection)
{
    int index = 0;
    for (const auto &item : collection)
        item->Index = ++index;
}
