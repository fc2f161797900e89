#pragma once

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class clsWordIdentities;
class clsWordStyleImport;

/// True for an element that is the same in every document with the same styles, apart from its content.
bool mdStandsAsItIs(const pugi::xml_node &element);

/// Prepares the content of one document for another, in one pass over each of its trees: maps styles, lists,
/// relationships and identities to the target's, and removes the document's own edit history.
class clsWordContentMap {
public:
    using Map = std::function<std::string(const std::string &)>;

    clsWordContentMap(clsWordStyleImport &styles, Map lists, clsWordIdentities &identities);

    /// Maps the main part's tree, whose relationships get new ids. It will be moved below the target's root, and uses
    /// that root's prefixes.
    void mapMain(pugi::xml_node root, const pugi::xml_node &targetRoot, Map relationships);
    /// Maps the tree of a header or footer, which keeps its own relationships.
    void mapOther(pugi::xml_node root);

    /// True if the content had a reference to a note; notes can't be taken over.
    bool hadNotes() const { return m_hadNotes; }

private:
    void map(pugi::xml_node root);
    void mapNode(pugi::xml_node node);
    void mapAttributes(pugi::xml_node node);
    bool isRelationshipId(const pugi::xml_node &node, const pugi::xml_attribute &attribute) const;
    void mapElement(pugi::xml_node node);
    void mapStyle(pugi::xml_node reference);
    void nameDefaultStyle(pugi::xml_node owner, const char *propertiesName, const char *styleName, const char *type);
    void mapBookmarkStart(pugi::xml_node node);
    void mapBookmarkEnd(pugi::xml_node node);
    void renameBookmarkUses();
    void removeDropped();

    clsWordStyleImport &m_styles;
    Map m_lists;
    clsWordIdentities &m_identities;
    pugi::xml_node m_root;
    pugi::xml_node m_targetRoot;
    Map m_relationships;
    bool m_hadNotes = false;
    std::unordered_map<std::string, std::string> m_bookmarkIds; // open bookmarks: old number, new number
    std::unordered_map<std::string, std::string> m_bookmarkNames; // those that had to change
    std::unordered_map<std::string, pugi::xml_node> m_openBookmarks;
    std::unordered_set<const void *> m_named; // style references already mapped to the target
    std::vector<pugi::xml_node> m_bookmarkUses;
    std::vector<pugi::xml_node> m_dropped;
};
