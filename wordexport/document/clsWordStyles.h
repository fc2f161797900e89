#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <set>
#include <string>
#include <unordered_map>

/// The definitions of styles, told apart by what they say and not by their ids, which every word processor is
/// free to choose. Two styles with the same number look the same, including all that they are based on.
class clsWordStyleDefinitions {
public:
    /// The number of a style of a document; `styles` is the root of its styles part, `numbering` that of its
    /// numbering part.
    class Of {
    public:
        Of(clsWordStyleDefinitions &definitions, const pugi::xml_node &styles, const pugi::xml_node &numbering);

        const pugi::xml_node &root() const { return m_styles; }
        pugi::xml_node style(const std::string &id) const;
        /// The style that applies where none is named; a null node where there is none.
        pugi::xml_node defaultStyle(const char *type) const;
        /// The number of the definition, -1 for a style that is not there.
        int number(const std::string &id);
        /// The number of the document's defaults, which lie below all styles.
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

/// The styles of the document that others are appended to: identical styles are shared, different ones of the same
/// name are taken over under a new name.
class clsWordStyles {
public:
    explicit clsWordStyles(clsWordPackage &target);

    /// The id of a style with that definition, empty where there is none yet.
    std::string find(int number) const;
    /// Takes a copy of a style over under an id and a name that are free, and returns it.
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

/// The part of a kind that a document is related to, added with an empty root where it has none.
int mdEnsureRelatedPart(clsWordPackage &package, const char *typeName, const char *rootName);
