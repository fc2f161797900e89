#pragma once

#include "wordexport/document/clsWordStyles.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// The styles of the document that others are appended to, read only when the first one comes whose styles are not
/// the very same bytes.
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

/// The styles of one document on their way into another. A style is taken over when it is first asked for.
class clsWordStyleImport {
public:
    /// Gives the target's number for a list's number in the source.
    using NumberMap = std::function<std::string(const std::string &)>;

    clsWordStyleImport(clsWordStylesOnDemand &target, clsWordPackage &source, NumberMap numbers);

    /// The styles as they came, to tell documents with other styles apart.
    const QByteArray &sourceBytes() const { return m_sourceBytes; }
    /// True when both documents have the very same styles, so that every id stands as it is.
    bool isSame() const { return m_same; }
    /// The target's id of a style; empty where the source has no such style.
    std::string styleFor(const std::string &id);
    /// The target's id of the source's default style of a type; empty where it is the target's default too.
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
    std::vector<pugi::xml_node> m_taken; // whose references are still to be mapped
    std::map<std::string, std::string> m_defaults;
};
