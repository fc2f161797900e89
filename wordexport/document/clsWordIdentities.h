#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <set>
#include <string>
#include <unordered_map>

/// What must be unique in the whole of a document: the numbers of pictures, bookmarks and content controls, and the
/// names of bookmarks. Counters, no random numbers: the same documents joined twice give the same bytes.
class clsWordIdentities {
public:
    /// Learns what the document has already.
    explicit clsWordIdentities(clsWordPackage &document);

    std::string nextDrawing() { return std::to_string(++m_lastDrawing); }
    std::string nextBookmark() { return std::to_string(++m_lastBookmark); }
    std::string nextControl() { return std::to_string(++m_lastControl); }
    /// The name itself where it is free, else a new one; either is then taken.
    std::string freeBookmarkName(const std::string &name);

private:
    void scan(const pugi::xml_node &node);

    long m_lastDrawing = 0;
    long m_lastBookmark = 0;
    long m_lastControl = 0;
    std::set<std::string> m_bookmarkNames;
    std::unordered_map<std::string, int> m_lastSuffix;
};
