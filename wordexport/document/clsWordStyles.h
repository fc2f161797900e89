#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <set>
#include <string>
#include <unordered_map>

/// The definitions of styles, identified by their content and not by their ids, which each word processor chooses
/// freely. Styles with the same number look the same, including their base styles.
class clsWordStyleDefinitions {
public:
    /// Numbers the styles of one document; `styles` is the root of its styles part, `numbering` that of its numbering
    /// part.
    class Of {
    public:
        Of(clsWordStyleDefinitions &definitions, const pugi::xml_node &styles, const pugi::xml_node &numbering);

        const pugi::xml_node &root() const { return m_styles; }
        pugi::xml_node style(const std::string &id) const;
        /// The default style of a type; a null node if there is none.
        pugi::xml_node defaultStyle(const char *type) const;
        /// The number of the definition; -1 if there is no such style.
        int number(const std::string &id);
        /// The number of the document's defaults, which are below all styles.
        int defaults() const { return m_defaults; }

    private:
        std::string describe(const pugi::xml_node &style);

        clsWordStyleDefinitions &m_definitions;
        pugi::xml_node m_styles;
        pugi::xml_node m_numbering;
        std::unordered_map<std::string, pugi::xml_node> m_byId;
        std::unordered_map<std::string, int> m_numbers;
        std::set<std::string> m_inProgress;
        int m_defaults;
    };

    int numberOf(const std::string &description);

private:
    std::unordered_map<std::string, int> m_numbers;
};

/// The styles of the target document: identical styles are shared, different ones of the same name are copied under a
/// new name.
class clsWordStyles {
public:
    explicit clsWordStyles(clsWordPackage &target);

    /// The id of a style with that definition; empty if there is none yet.
    std::string find(int number) const;
    /// Copies a style under a free id and name, and returns the copy.
    pugi::xml_node add(const pugi::xml_node &style, int number);

    clsWordStyleDefinitions &definitions() { return m_definitions; }
    const clsWordStyleDefinitions::Of &own() const { return m_own; }
    pugi::xml_node root() { return m_root; }

private:
    clsWordPackage &m_target;
    int m_part;
    pugi::xml_node m_root;
    clsWordStyleDefinitions m_definitions;
    clsWordStyleDefinitions::Of m_own;
    std::unordered_map<int, std::string> m_byNumber;
    std::set<std::string> m_ids;
    std::set<std::string> m_names;
    std::unordered_map<std::string, int> m_lastSuffix;
};

/// The part of that type that a document refers to; added with an empty root if missing.
int mdEnsureRelatedPart(clsWordPackage &package, const char *typeName, const char *rootName);
