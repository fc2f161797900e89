#pragma once

#include "formdata/clsXMLRecord.h"

#include <QStringView>

#include <vector>

class QMenu;

/// How a menu's copy of a collection is sorted.
enum class clsMenuOrder { Ascending, Descending };

/// An item of a menu's collection: the record, by whose properties the entry is named and sorted, and the item's
/// `Index`, which the entry carries as its data, so that whoever picks it finds the item again.
struct clsMenuItem {
    const clsXMLRecord *record;
    int index;
};

/// Fills a popup menu. Its first entry is kept and stands for an empty collection; the others are made anew.
void mdLoadMenuFromCollection(QMenu &menu, std::vector<clsMenuItem> items, QStringView captionProperty,
    QStringView sortProperty = {}, clsMenuOrder order = clsMenuOrder::Ascending);

/// The same for a list of the claim or of the preferences, which stays in its own order.
template <class Collection>
void mdLoadMenuFromCollection(QMenu &menu, const Collection &collection, QStringView captionProperty,
    QStringView sortProperty = {}, clsMenuOrder order = clsMenuOrder::Ascending) requires requires
{
    (*collection.begin())->Index;
}
{
    std::vector<clsMenuItem> items;
    items.reserve(size_t(collection.size()));
    for (const auto &item : collection)
        items.push_back({item.get(), item->Index});
    mdLoadMenuFromCollection(menu, std::move(items), captionProperty, sortProperty, order);
}
