#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <unordered_map>

/// What the document that others are appended to knows of its parts: by content, so that a picture or a footer that
/// many documents hold is there once, and its main part's relationships by type and target.
struct clsWordKnownParts {
    bool learned = false;
    std::unordered_map<std::string, int> byContent;
    std::map<std::pair<std::string, std::string>, std::string> relationships;
};

/// The parts that the content of one document refers to, on their way into another.
class clsWordPartImport {
public:
    /// Makes the tree of a header or footer ready for the target.
    using ContentMap = std::function<void(pugi::xml_node root)>;

    /// `targetStyles` and `sourceStyles` tell apart headers and footers that only look the same byte for byte.
    clsWordPartImport(clsWordPackage &target, clsWordKnownParts &known, const QByteArray &targetStyles,
        clsWordPackage &source, const QByteArray &sourceStyles, ContentMap mapContent);

    /// An error where a part that the source's main part is related to is missing: before anything is copied.
    void checkSource();
    /// The id in the target's main part of a relationship of the source's main part.
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
