#pragma once

#include "wordexport/clsWordPackage.h"
#include "wordexport/clsWordStyles.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

/// What must be unique in the whole of a document: the numbers of pictures, bookmarks and content controls, and the
/// names of bookmarks. Counters, no random numbers: the same documents joined twice give the same bytes.
class clsWordIdentities {
public:
    explicit clsWordIdentities(clsWordPackage &target);

    std::string nextDrawing() { return std::to_string(++m_lastDrawing); }
    std::string nextBookmark() { return std::to_string(++m_lastBookmark); }
    std::string nextControl() { return std::to_string(++m_lastControl); }
    /// The name itself where it is free, else a new one.
    std::string freeBookmarkName(const std::string &name);

private:
    void scan(const pugi::xml_node &node);

    long m_lastDrawing = 0;
    long m_lastBookmark = 0;
    long m_lastControl = 0;
    std::set<std::string> m_bookmarkNames;
    std::unordered_map<std::string, int> m_lastSuffix;
};

/// What the target keeps from one appended document to the next.
struct clsWordAppendTarget {
    explicit clsWordAppendTarget(clsWordPackage &target);

    clsWordStyles &styles();

    clsWordPackage &package;
    /// The styles before anything was appended: most documents have the very same, byte for byte.
    const QByteArray originalStyles;
    clsWordIdentities identities;
    /// Parts by their content, so that a picture or a footer that many documents hold is there once.
    std::unordered_map<std::string, int> partsByContent;
    bool partsKnown = false;
    /// Relationships of the main part by type and target.
    std::map<std::pair<std::string, std::string>, std::string> relationships;
    long lastAbstractNumber = -1;
    long lastNumber = -1;

private:
    std::unique_ptr<clsWordStyles> m_styles;
};

/// One document on its way into another: changes the source's content so that it can be copied, and copies what the
/// content refers to.
class clsWordAppending {
public:
    clsWordAppending(clsWordAppendTarget &target, clsWordPackage &source);

    /// Makes the tree of the source's main part ready: styles, lists, relationships and identities are then the
    /// target's.
    void mapMainPart(pugi::xml_node body);

private:
    enum class Kind;
    struct Names;

    bool sameStyles();
    void mapContent(pugi::xml_node root, bool ofMainPart);
    void mapNode(pugi::xml_node node);
    void mapAttributes(pugi::xml_node node);
    void mapElement(pugi::xml_node node, Kind kind);
    void mapStyleOf(pugi::xml_node node, const char *propertiesName, const char *styleName, const char *type);
    void mapStyleValue(pugi::xml_node reference);
    void mapBookmark(pugi::xml_node node);
    void renameBookmarkUses();
    void removeDropped();

    std::string styleFor(const std::string &id);
    std::string defaultStyleFor(const char *type);
    void mergeDefaults(pugi::xml_node style);
    std::string numberFor(const std::string &id);
    std::string abstractNumberFor(const pugi::xml_node &abstract);
    pugi::xml_node targetNumbering();
    pugi::xml_node sourceNumbering();
    pugi::xml_node sourceStyles();
    clsWordStyleDefinitions::Of &sourceDefinitions();

    std::string relationshipFor(const char *id);
    int copyPart(int sourcePart);
    std::string contentKey(clsWordPackage &package, int part,
                           const std::vector<clsWordPackage::Relationship> &relationships, const QByteArray &styles);
    void learnTargetParts();

    clsWordAppendTarget &m_target;
    clsWordPackage &m_source;
    std::string m_relationshipPrefix = "r:";
    bool m_ofMainPart = false;
    std::optional<bool> m_sameStyles;
    std::unique_ptr<clsWordStyleDefinitions::Of> m_sourceDefinitions;
    std::unordered_map<std::string, std::string> m_styles;
    std::map<std::string, std::string> m_defaultStyles;
    std::unordered_map<std::string, std::string> m_numbers;
    std::unordered_map<std::string, std::string> m_abstractNumbers;
    std::unordered_map<std::string, std::string> m_relationships;
    std::unordered_map<std::string, std::string> m_bookmarkIds;
    std::unordered_map<std::string, std::string> m_bookmarkNames; // only those that had to change
    std::map<int, int> m_parts;
    std::set<int> m_partsInProgress;
    std::vector<pugi::xml_node> m_bookmarkUses;
    std::vector<pugi::xml_node> m_dropped;
};
