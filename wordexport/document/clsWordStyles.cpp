#include "wordexport/document/clsWordStyles.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <string_view>
#include <vector>

using pugi::xml_node;

namespace {

// Elements without effect on the look: identity, sorting, edit history.
constexpr const char *NoLook[] = {
    "w:name",
    "w:aliases",
    "w:basedOn",
    "w:next",
    "w:link",
    "w:rsid",
    "w:uiPriority",
    "w:semiHidden",
    "w:unhideWhenUsed",
    "w:qFormat",
    "w:locked",
    "w:autoRedefine",
    "w:personal",
    "w:personalCompose",
    "w:personalReply",
    "w:nsid",
    "w:tmpl",
    "w:numPr",
};

bool saysNothing(const xml_node &node)
{
    return std::any_of(
        std::begin(NoLook), std::end(NoLook), [&node](const char *name) { return WordXml::is(node, name); });
}

// Equal text for equal content: attributes sorted, no edit history.
void describeTree(const xml_node &node, std::string &out)
{
    if (node.type() == pugi::node_pcdata || !WordXml::isElement(node))
        return;
    out += '<';
    out += node.name();
    std::vector<std::pair<std::string, std::string>> attributes;
    for (const pugi::xml_attribute &attribute : node.attributes())
        if (!std::string_view(attribute.name()).starts_with("w:rsid"))
            attributes.emplace_back(attribute.name(), attribute.value());
    std::sort(attributes.begin(), attributes.end());
    for (const auto &[name, value] : attributes)
        out.append(" ").append(name).append("=").append(value).append(";");
    for (const xml_node &child : node.children())
        if (!saysNothing(child))
            describeTree(child, out);
    out += '>';
}

std::string describeNumbering(const xml_node &numbering, const char *numId)
{
    const xml_node number = numbering.find_child_by_attribute("w:num", "w:numId", numId);
    const xml_node abstract = numbering.find_child_by_attribute(
        "w:abstractNum", "w:abstractNumId", WordXml::val(number.child("w:abstractNumId")));
    std::string description;
    for (const xml_node &level : abstract.children())
        if (!saysNothing(level))
            describeTree(level, description);
    for (const xml_node &change : number.children("w:lvlOverride"))
        describeTree(change, description);
    return description;
}

} // namespace

clsWordStyleDefinitions::Of::Of(clsWordStyleDefinitions &definitions, const xml_node &styles, const xml_node &numbering)
    : m_definitions(definitions)
    , m_styles(styles)
    , m_numbering(numbering)
{
    for (const xml_node &style : styles.children("w:style"))
        m_byId.emplace(style.attribute("w:styleId").value(), style);
    std::string defaults;
    describeTree(styles.child("w:docDefaults"), defaults);
    m_defaults = definitions.numberOf(defaults);
}

xml_node clsWordStyleDefinitions::Of::style(const std::string &id) const
{
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? xml_node() : found->second;
}

xml_node clsWordStyleDefinitions::Of::defaultStyle(const char *type) const
{
    for (const xml_node &style : m_styles.children("w:style"))
        if (style.attribute("w:default").as_bool() && std::strcmp(style.attribute("w:type").value(), type) == 0)
            return style;
    return {};
}

int clsWordStyleDefinitions::Of::number(const std::string &id)
{
    const auto known = m_numbers.find(id);
    if (known != m_numbers.end())
        return known->second;
    const xml_node found = style(id);
    // A style in a cycle has no base style at that step; nor has one at the end of a chain too long for any word
    // processor.
    constexpr size_t LongestChain = 200;
    if (!found || m_inProgress.size() >= LongestChain || !m_inProgress.insert(id).second)
        return -1;
    const int number = m_definitions.numberOf(describe(found));
    m_inProgress.erase(id);
    m_numbers.emplace(id, number);
    return number;
}

std::string clsWordStyleDefinitions::Of::describe(const xml_node &found)
{
    std::string description = found.attribute("w:type").value();
    description += '|';
    description += WordXml::val(found.child("w:name"));
    description += '|';
    const std::string base = WordXml::val(found.child("w:basedOn"));
    description += std::to_string(base.empty() ? -1 : number(base)) + '|' + std::to_string(m_defaults) + '|';
    for (const xml_node &child : found.children())
        if (!saysNothing(child))
            describeTree(child, description);
    const xml_node list = found.child("w:pPr").child("w:numPr");
    if (list)
        description += "|list " + std::string(WordXml::val(list.child("w:ilvl"))) + ' '
            + describeNumbering(m_numbering, WordXml::val(list.child("w:numId")));
    return description;
}

int clsWordStyleDefinitions::numberOf(const std::string &description)
{
    return m_numbers.emplace(description, int(m_numbers.size())).first->second;
}

int mdEnsureRelatedPart(clsWordPackage &package, const char *typeName, const char *rootName)
{
    if (const int part = package.relatedPart(typeName); part >= 0)
        return part;
    const QByteArray empty = QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><") + rootName
        + " xmlns:w=\"" + WordXml::MainNamespace + "\"/>";
    const QString &main = package.partName(package.mainPart());
    const QString name = main.left(main.lastIndexOf(u'/') + 1) + QLatin1String(typeName) + QLatin1String(".xml");
    const int part = package.addPart(name, empty,
        std::string("application/vnd.openxmlformats-officedocument.wordprocessingml.") + typeName + "+xml");
    package.addRelationship(package.mainPart(), std::string(WordXml::RelationshipNamespace) + '/' + typeName, part);
    return part;
}

clsWordStyles::clsWordStyles(clsWordPackage &target)
    : m_target(target)
    , m_part(target.relatedPart("styles"))
    , m_root(m_part < 0 ? xml_node() : target.partXml(m_part).document_element())
    , m_own(m_definitions, m_root,
          target.relatedPart("numbering") < 0 ? xml_node()
                                              : target.partXml(target.relatedPart("numbering")).document_element())
{
    for (const xml_node &style : m_root.children("w:style")) {
        const std::string id = style.attribute("w:styleId").value();
        m_ids.insert(id);
        m_names.insert(WordXml::val(style.child("w:name")));
        m_byNumber.emplace(m_own.number(id), id);
    }
}

std::string clsWordStyles::find(int number) const
{
    const auto found = m_byNumber.find(number);
    return found == m_byNumber.end() ? std::string() : found->second;
}

xml_node clsWordStyles::add(const xml_node &style, int number)
{
    if (!m_root) {
        m_part = mdEnsureRelatedPart(m_target, "styles", "w:styles");
        m_root = m_target.partXml(m_part).document_element();
    }
    const std::string id = style.attribute("w:styleId").value();
    const std::string name = WordXml::val(style.child("w:name"));
    std::string freeId = id;
    std::string freeName = name;
    int &suffix = m_lastSuffix.try_emplace(name, 1).first->second;
    while (m_ids.contains(freeId) || m_names.contains(freeName)) {
        ++suffix;
        freeId = id + '_' + std::to_string(suffix);
        freeName = name + " (" + std::to_string(suffix) + ')';
    }
    xml_node copy = m_root.append_copy(style);
    WordXml::setAttribute(copy, "w:styleId", freeId);
    WordXml::setAttribute(copy.child("w:name"), "w:val", freeName);
    copy.remove_attribute("w:default");
    copy.remove_child("w:aliases");
    copy.remove_child("w:rsid");
    if (freeName != name)
        WordXml::setAttribute(copy, "w:customStyle", "1");
    m_ids.insert(freeId);
    m_names.insert(freeName);
    m_byNumber.emplace(number, freeId);
    m_target.setChanged(m_part);
    return copy;
}
