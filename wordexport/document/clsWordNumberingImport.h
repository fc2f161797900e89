#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <functional>
#include <string>
#include <unordered_map>

/// The last numbers given to lists in the document that others are appended to; -1 before they are known.
struct clsWordListNumbers {
    long abstractNumber = -1;
    long number = -1;
};

/// The lists of one document on their way into another. Each document's lists get numbers of their own, so that
/// they start again instead of counting on.
class clsWordNumberingImport {
public:
    /// Gives the target's id for a style's id in the source.
    using StyleMap = std::function<std::string(const std::string &)>;

    clsWordNumberingImport(clsWordPackage &target, clsWordListNumbers &last, clsWordPackage &source, StyleMap styles);

    /// The target's number of a list, which is copied when it is first asked for.
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
