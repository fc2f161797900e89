#pragma once

#include "formdata/clsXMLRecord.h"

#include <QStringView>

#include <vector>

class QMenu;

/// The sort order of a menu's entries.
enum class clsMenuOrder { Ascending, Descending };

/// An item for a menu: the record, whose properties name and sort the entry, and the item's `Index`, which becomes the
/// entry's data.
struct clsMenuItem {
    const clsXMLRecord *record;
    int index;
};

/// Fills a popup menu. Keeps its first entry, shown for an empty collection, and replaces the others.
void mdLoadMenuFromCollection(QMenu &menu, std::vector<clsMenuItem> items, QStringView captionProperty,
    QStringView sortProperty = {}, clsMenuOrder order = clsMenuOrder::Ascending);

/// The same for a list of the claim or the preferences, whose own order doesn't change.
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
