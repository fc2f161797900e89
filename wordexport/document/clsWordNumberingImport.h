#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <functional>
#include <string>
#include <unordered_map>

/// The last list numbers used in the target document; -1 before they have been read.
struct clsWordListNumbers {
    long abstractNumber = -1;
    long number = -1;
};

/// Imports the lists of one document into another. Each document's lists get new numbers, so that they restart instead
/// of continuing.
class clsWordNumberingImport {
public:
    /// Returns the target's id for a style id of the source.
    using StyleMap = std::function<std::string(const std::string &)>;

    clsWordNumberingImport(clsWordPackage &target, clsWordListNumbers &last, clsWordPackage &source, StyleMap styles);

    /// The target's number of a list, which is copied on first use.
    std::string numberFor(const std::string &id);

private:
    std::string abstractNumberFor(const pugi::xml_node &abstract);
    void mapStyles(pugi::xml_node node);
    pugi::xml_node sourceRoot();
    pugi::xml_node targetRoot();

    clsWordPackage &m_target;
    clsWordListNumbers &m_last;
    clsWordPackage &m_source;
    StyleMap m_styles;
    bool m_namespacesMerged = false;
    std::unordered_map<std::string, std::string> m_numbers;
    std::unordered_map<std::string, std::string> m_abstractNumbers;
};
