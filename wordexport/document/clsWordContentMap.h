#pragma once

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class clsWordIdentities;
class clsWordStyleImport;

/// True for an element that is the same in every document with the same styles; what is in it is another question.
bool mdStandsAsItIs(const pugi::xml_node &element);

/// Makes the content of one document ready to stand in another, in one walk over each of its trees: styles, lists,
/// relationships and identities become the target's, and what belongs to one document's own history is dropped.
class clsWordContentMap {
public:
    using Map = std::function<std::string(const std::string &)>;

    clsWordContentMap(clsWordStyleImport &styles, Map lists, clsWordIdentities &identities);

    /// The main part's tree, whose relationships get new ids; it is going below the target's root, whose prefixes it
    /// has.
    void mapMain(pugi::xml_node root, const pugi::xml_node &targetRoot, Map relationships);
    /// The tree of a header or footer, which brings its own relationships along.
    void mapOther(pugi::xml_node root);

    /// True when the content had a reference to a note, which can't be taken along.
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
    std::unordered_set<const void *> m_named; // references to a style that are the target's already
    std::vector<pugi::xml_node> m_bookmarkUses;
    std::vector<pugi::xml_node> m_dropped;
};
