#include "wordexport/document/clsWordStyleImport.h"

#include "wordexport/document/mdWordNamespaces.h"
#include "wordexport/document/mdWordXml.h"

using pugi::xml_node;

namespace {

xml_node rootOf(clsWordPackage &package, const char *typeName)
{
    const int part = package.relatedPart(typeName);
    return part < 0 ? xml_node() : package.partXml(part).document_element();
}

QByteArray stylesOf(clsWordPackage &package)
{
    const int part = package.relatedPart("styles");
    return part < 0 ? QByteArray() : package.partBytes(part);
}

void addMissingAttributes(xml_node to, const xml_node &from)
{
    for (const pugi::xml_attribute &attribute : from.attributes())
        if (!to.attribute(attribute.name()))
            to.append_attribute(attribute.name()) = attribute.value();
}

// Adds properties below the existing ones: those of the style override the document's defaults.
void addMissing(xml_node to, const xml_node &from)
{
    for (const xml_node &property : from.children()) {
        if (!WordXml::isElement(property))
            continue;
        const bool inParts = WordXml::is(property, "w:spacing") || WordXml::is(property, "w:ind");
        if (xml_node present = to.child(property.name())) {
            if (inParts)
                addMissingAttributes(present, property);
            continue;
        }
        const xml_node place = WordXml::addChild(to, property.name());
        to.insert_copy_after(property, place);
        to.remove_child(place);
    }
}

xml_node ensureStyleProperties(xml_node style, const char *name)
{
    if (const xml_node present = style.child(name))
        return present;
    // After the style's description, paragraph properties before run properties.
    for (const char *later : {"w:rPr", "w:tblPr", "w:trPr", "w:tcPr", "w:tblStylePr"})
        if (const xml_node next = style.child(later))
            return style.insert_child_before(name, next);
    return style.append_child(name);
}

} // namespace

clsWordStylesOnDemand::clsWordStylesOnDemand(clsWordPackage &target)
    : m_target(target)
    , m_originalBytes(stylesOf(target))
{ }

clsWordStyles &clsWordStylesOnDemand::get()
{
    if (!m_styles)
        m_styles = std::make_unique<clsWordStyles>(m_target);
    return *m_styles;
}

clsWordStyleImport::clsWordStyleImport(clsWordStylesOnDemand &target, clsWordPackage &source, NumberMap numbers)
    : m_target(target)
    , m_source(source)
    , m_numbers(std::move(numbers))
    , m_sourceBytes(stylesOf(source))
    , m_same(m_sourceBytes == target.originalBytes())
{ }

clsWordStyleDefinitions::Of &clsWordStyleImport::definitions()
{
    if (!m_definitions)
        m_definitions = std::make_unique<clsWordStyleDefinitions::Of>(
            m_target.get().definitions(), rootOf(m_source, "styles"), rootOf(m_source, "numbering"));
    return *m_definitions;
}

std::string clsWordStyleImport::styleFor(const std::string &id)
{
    if (m_same)
        return id;
    const auto known = m_ids.find(id);
    if (known != m_ids.end())
        return known->second;
    const xml_node style = definitions().style(id);
    if (!style)
        return {};
    const int number = definitions().number(id);
    const std::string shared = m_target.get().find(number);
    if (shared.empty())
        return take(style, number);
    m_ids.emplace(id, shared);
    return shared;
}

std::string clsWordStyleImport::take(const xml_node &style, int number)
{
    // The prefixes of the copy must be declared; in a conflict those of the source's root are renamed.
    xml_node copy = m_target.get().add(style, number);
    mdMergeNamespaces(definitions().root(), m_target.get().root());
    const std::string id = copy.attribute("w:styleId").value();
    m_ids.emplace(style.attribute("w:styleId").value(), id); // before its references: styles refer to each other in
                                                             // cycles
    if (definitions().defaults() != m_target.get().own().defaults() && !style.child("w:basedOn")
        && std::strcmp(style.attribute("w:type").value(), "paragraph") == 0)
        addDefaults(copy);
    // Referenced styles are copied afterwards and not recursively: a chain may be deeper than the stack.
    m_taken.push_back(copy);
    if (m_taken.size() > 1)
        return id; // continued by the call that copied the first
    for (size_t i = 0; i < m_taken.size(); ++i)
        mapReferences(m_taken[i]);
    m_taken.clear();
    return id;
}

void clsWordStyleImport::mapReferences(xml_node style)
{
    for (const char *reference : {"w:basedOn", "w:next", "w:link"}) {
        const xml_node node = style.child(reference);
        if (!node)
            continue;
        const std::string id = styleFor(WordXml::val(node));
        if (id.empty())
            style.remove_child(node);
        else
            WordXml::setAttribute(node, "w:val", id);
    }
    if (const xml_node list = style.child("w:pPr").child("w:numPr").child("w:numId"))
        WordXml::setAttribute(list, "w:val", m_numbers(WordXml::val(list)));
}

// A document has only one set of defaults, so the source's become part of the lowest style in the chain, together with
// the format's own values for properties that only the target's defaults set.
void clsWordStyleImport::addDefaults(xml_node style)
{
    const xml_node defaults = definitions().root().child("w:docDefaults");
    xml_node run = ensureStyleProperties(style, "w:rPr");
    addMissing(run, defaults.child("w:rPrDefault").child("w:rPr"));
    for (const char *size : {"w:sz", "w:szCs"})
        if (!run.child(size))
            WordXml::addChild(run, size).append_attribute("w:val") = "20";
    xml_node paragraph = ensureStyleProperties(style, "w:pPr");
    addMissing(paragraph, defaults.child("w:pPrDefault").child("w:pPr"));
    xml_node spacing = WordXml::ensureChild(paragraph, "w:spacing");
    for (const auto &[name, value] : {std::pair("w:before", "0"), std::pair("w:after", "0"), std::pair("w:line", "240"),
             std::pair("w:lineRule", "auto")})
        if (!spacing.attribute(name))
            spacing.append_attribute(name) = value;
}

std::string clsWordStyleImport::defaultFor(const char *type)
{
    if (m_same)
        return {};
    const auto known = m_defaults.find(type);
    if (known != m_defaults.end())
        return known->second;
    const xml_node own = definitions().defaultStyle(type);
    std::string id = own ? styleFor(own.attribute("w:styleId").value()) : std::string();
    if (id == m_target.get().own().defaultStyle(type).attribute("w:styleId").value())
        id.clear();
    m_defaults.emplace(type, id);
    return id;
}
