#include "costing/comparing/mdMatchItems.h"

#include "costing/tables/mdClaimItems.h"
#include "formdata/clsXMLRecord.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

using Items = std::vector<const clsXMLRecord *>;
using Key = QStringList; ///< the values that two items must have in common

/// All properties but the order.
Key wholeOf(const clsXMLRecord &item)
{
    Key key;
    for (const clsXMLPropertyPlace &place : item.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        if (name != QLatin1String("OrderID"))
            key << mdValueOf(*item.field(name));
    }
    return key;
}

Key partOf(const clsXMLRecord &item, const std::vector<const char *> &properties)
{
    Key key;
    for (const char *name : properties)
        key << mdValueOf(*item.field(QString::fromLatin1(name)));
    return key;
}

/// Matches each unmatched old item with the first unmatched new one with the same key.
template <class KeyOf> void pair(std::vector<clsItemMatch> &matches, Items &left, bool isEqual, KeyOf keyOf)
{
    QHash<Key, QList<size_t>> places;
    for (size_t place = left.size(); place-- > 0;)
        if (left[place])
            places[keyOf(*left[place])] << place;
    for (clsItemMatch &match : matches) {
        if (match.New)
            continue;
        const auto found = places.find(keyOf(*match.Old));
        if (found == places.end() || found->isEmpty())
            continue;
        match.isEqual = isEqual;
        match.New = std::exchange(left[found->takeLast()], nullptr);
    }
}

} // namespace

std::vector<clsItemMatch> mdMatchItems(const Items &before, const Items &after, const std::vector<const char *> &sameIn)
{
    std::vector<clsItemMatch> matches;
    matches.reserve(before.size());
    for (const clsXMLRecord *item : before)
        matches.push_back({item});
    Items left = after;
    pair(matches, left, true, wholeOf);
    pair(matches, left, false, [&](const clsXMLRecord &item) { return partOf(item, sameIn); });
    for (const clsXMLRecord *item : left)
        if (item)
            matches.push_back({nullptr, item});
    return matches;
}
