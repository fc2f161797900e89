#pragma once

#include <vector>

class clsXMLRecord;

/// Two matching items, or one without a match.
struct clsItemMatch {
    const clsXMLRecord *Old = nullptr;
    const clsXMLRecord *New = nullptr;
    bool isEqual = false; ///< except for the order
};

/// Matches the items of two lists, each in order: first equal items, then items with the same values of some
/// properties. Of several the first one left is used. The old ones come first, in order, then the unmatched new ones.
std::vector<clsItemMatch> mdMatchItems(const std::vector<const clsXMLRecord *> &before,
    const std::vector<const clsXMLRecord *> &after, const std::vector<const char *> &sameIn);
