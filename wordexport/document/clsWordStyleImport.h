#pragma once

#include "wordexport/document/clsWordStyles.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// The styles of the target document, read only when the first document arrives whose styles part is not identical.
class clsWordStylesOnDemand {
public:
    explicit clsWordStylesOnDemand(clsWordPackage &target);

    const QByteArray &originalBytes() const { return m_originalBytes; }
    clsWordStyles &get();

private:
    clsWordPackage &m_target;
    QByteArray m_originalBytes;
    std::unique_ptr<clsWordStyles> m_styles;
};

/// Imports the styles of one document into another. A style is copied on first use.
class clsWordStyleImport {
public:
    /// Returns the target's number for a list number of the source.
    using NumberMap = std::function<std::string(const std::string &)>;

    clsWordStyleImport(clsWordStylesOnDemand &target, clsWordPackage &source, NumberMap numbers);

    /// The original styles part, to distinguish documents with other styles.
    const QByteArray &sourceBytes() const { return m_sourceBytes; }
    /// True if both documents have identical styles, so that all ids stay the same.
    bool isSame() const { return m_same; }
    /// The target's id of a style; empty if the source has no such style.
    std::string styleFor(const std::string &id);
    /// The target's id of the source's default style of a type; empty if it is the target's default too.
    std::string defaultFor(const char *type);

private:
    clsWordStyleDefinitions::Of &definitions();
    std::string take(const pugi::xml_node &style, int number);
    void mapReferences(pugi::xml_node style);
    void addDefaults(pugi::xml_node style);

    clsWordStylesOnDemand &m_target;
    clsWordPackage &m_source;
    NumberMap m_numbers;
    QByteArray m_sourceBytes;
    bool m_same;
    std::unique_ptr<clsWordStyleDefinitions::Of> m_definitions;
    std::unordered_map<std::string, std::string> m_ids;
    std::vector<pugi::xml_node> m_taken; // with references still to be mapped
    std::map<std::string, std::string> m_defaults;
};
