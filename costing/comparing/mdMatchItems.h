#pragma once

#include <vector>

class clsXMLRecord;

/// Two items that belong together, or one that has no other.
struct clsItemMatch {
    const clsXMLRecord *Old = nullptr;
    const clsXMLRecord *New = nullptr;
    bool isEqual = false; ///< in everything but the order
};

/// Finds which items of two lists, each in its order, belong together: first those that are equal, then those that have
/// the values of some properties in common. Of several the first that is left is taken. The old ones come first, in
/// their order, and then the new ones that are left.
std::vector<clsItemMatch> mdMatchItems(const std::vector<const clsXMLRecord *> &before,
    const std::vector<const clsXMLRecord *> &after, const std::vector<const char *> &sameIn);
