#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <unordered_map>

/// The target document's parts by content, so that a picture or footer in many documents is stored once, and its main
/// part's relationships by type and target.
struct clsWordKnownParts {
    bool learned = false;
    std::unordered_map<std::string, int> byContent;
    std::map<std::pair<std::string, std::string>, std::string> relationships;
};

/// Imports the parts that the content of one document refers to into another.
class clsWordPartImport {
public:
    /// Prepares the tree of a header or footer for the target.
    using ContentMap = std::function<void(pugi::xml_node root)>;

    /// `targetStyles` and `sourceStyles` distinguish headers and footers that have the same bytes but different styles.
    clsWordPartImport(clsWordPackage &target, clsWordKnownParts &known, const QByteArray &targetStyles,
        clsWordPackage &source, const QByteArray &sourceStyles, ContentMap mapContent);

    /// Raises an error, before anything is copied, if a part that the source's main part refers to is missing.
    void checkSource();
    /// The id, in the target's main part, for a relationship of the source's main part.
    std::string relationshipFor(const char *id);

private:
    int copyPart(int sourcePart);
    std::vector<clsWordPackage::Relationship> copiedRelationships(int sourcePart);
    std::string relationshipTo(const std::string &type, int targetPart);
    std::string externalRelationship(const clsWordPackage::Relationship &relation);
    void learnTarget();

    clsWordPackage &m_target;
    clsWordKnownParts &m_known;
    QByteArray m_targetStyles;
    clsWordPackage &m_source;
    QByteArray m_sourceStyles;
    ContentMap m_mapContent;
    std::unordered_map<std::string, std::string> m_relationships;
    std::map<int, int> m_parts;
    std::set<int> m_inProgress;
};
