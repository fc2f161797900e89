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

/// Appends whole documents to one, each as sections of its own with its own page setup. Lives as long as the
/// document that it appends to is open, so that each further document costs no more than the one before.
class clsWordComposer {
public:
    explicit clsWordComposer(clsWordPackage &target);

    /// Appends a document's file. One that can't be appended is an error, and the target's text is then as it was.
    /// `plain` is what is known of the file, where it is known.
    void append(const QString &path, const QString &shownName, const clsPlainText *plain);

private:
    /// Which header or footer: its element's name and its type.
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
    std::set<HeaderKind> m_headers; // in use anywhere so far
    std::map<std::string, std::string> m_emptyHeaders;
};
