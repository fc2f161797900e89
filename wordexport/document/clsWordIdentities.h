#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <set>
#include <string>
#include <unordered_map>

/// The values that must be unique in a document: the numbers of pictures, bookmarks and content controls, and the names
/// of bookmarks. Uses counters, not random numbers: joining the same documents twice produces the same bytes.
class clsWordIdentities {
public:
    /// Collects the values that the document already uses.
    explicit clsWordIdentities(clsWordPackage &document);

    std::string nextDrawing() { return std::to_string(++m_lastDrawing); }
    std::string nextBookmark() { return std::to_string(++m_lastBookmark); }
    std::string nextControl() { return std::to_string(++m_lastControl); }
    /// The name itself if it is free, otherwise a new one; reserves the result.
    std::string freeBookmarkName(const std::string &name);

private:
    void scan(const pugi::xml_node &node);

    long m_lastDrawing = 0;
    long m_lastBookmark = 0;
    long m_lastControl = 0;
    std::set<std::string> m_bookmarkNames;
    std::unordered_map<std::string, int> m_lastSuffix;
};
