#pragma once

#include "wordexport/document/clsPlainText.h"
#include "wordexport/document/clsWordIdentities.h"
#include "wordexport/document/clsWordNumberingImport.h"
#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/clsWordPartImport.h"
#include "wordexport/document/clsWordStyleImport.h"

#include <map>
#include <set>
#include <string>

/// Appends whole documents to one, each with its own sections and page setup. Lives as long as the target document is
/// open, so that the cost per document doesn't grow.
class clsWordComposer {
public:
    explicit clsWordComposer(clsWordPackage &target);

    /// Appends a document's file. Raises an error if that fails; the target's text is then unchanged. `plain` describes
    /// the file if it is plain.
    void append(const QString &path, const QString &shownName, const clsPlainText *plain);

private:
    /// A kind of header or footer: its element's name and its type.
    using HeaderKind = std::pair<std::string, std::string>;

    pugi::xml_node targetBody();
    void append(clsWordPackage &source);
    bool appendAsItStands(const QString &path, const clsPlainText &plain);
    void mapContent(clsWordPackage &source, pugi::xml_node body);
    void beginSection(const pugi::xml_node &sourceBody, pugi::xml_node firstSection);
    void settleTarget();
    void moveBlocks(const pugi::xml_node &sourceBody, const pugi::xml_node &finalSection);
    void beginOnNewPage(pugi::xml_node firstSection);
    void fillMissingHeaders(pugi::xml_node firstSection);
    void noteHeaders(const pugi::xml_node &body);
    std::string emptyHeader(const std::string &reference);
    void sealLastSection(pugi::xml_node body);

    clsWordPackage &m_target;
    clsWordIdentities m_identities;
    clsWordStylesOnDemand m_styles;
    clsWordListNumbers m_lists;
    clsWordKnownParts m_parts;
    std::set<HeaderKind> m_headers; // used so far
    std::map<std::string, std::string> m_emptyHeaders;
};
