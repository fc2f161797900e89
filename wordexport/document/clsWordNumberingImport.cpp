#include "wordexport/document/clsWordNumberingImport.h"

#include "wordexport/document/clsWordStyles.h"
#include "wordexport/document/mdWordNamespaces.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <vector>

using pugi::xml_node;

namespace {

// Larger numbers are ignored: they don't come from counting, and counting on from them would leave the format's range.
// New numbers never reach them.
constexpr int Countable = 1'000'000'000;

long highest(const xml_node &root, const char *element, const char *attribute)
{
    int last = 0;
    for (const xml_node &node : root.children(element))
        if (const int number = node.attribute(attribute).as_int(); number <= Countable)
            last = std::max(last, number);
    return last;
}

// The format requires eight hexadecimal digits, different for each list.
std::string listIdentity(long number)
{
    return QString::number(0x5A520000 + number, 16).toUpper().toStdString();
}

} // namespace

clsWordNumberingImport::clsWordNumberingImport(
    clsWordPackage &target, clsWordListNumbers &last, clsWordPackage &source, StyleMap styles)
    : m_target(target)
    , m_last(last)
    , m_source(source)
    , m_styles(std::move(styles))
{ }

xml_node clsWordNumberingImport::sourceRoot()
{
    const int part = m_source.relatedPart("numbering");
    return part < 0 ? xml_node() : m_source.partXml(part).document_element();
}

xml_node clsWordNumberingImport::targetRoot()
{
    const int part = mdEnsureRelatedPart(m_target, "numbering", "w:numbering");
    const xml_node root = m_target.partXml(part).document_element();
    m_target.setChanged(part);
    if (m_last.number < 0) {
        m_last.number = highest(root, "w:num", "w:numId");
        m_last.abstractNumber = highest(root, "w:abstractNum", "w:abstractNumId");
    }
    if (!m_namespacesMerged)
        mdMergeNamespaces(sourceRoot(), root);
    m_namespacesMerged = true;
    return root;
}

std::string clsWordNumberingImport::numberFor(const std::string &id)
{
    if (id == "0")
        return id; // "in no list", overriding the style
    const auto known = m_numbers.find(id);
    if (known != m_numbers.end())
        return known->second;
    const xml_node source = sourceRoot();
    xml_node root = targetRoot();
    const xml_node number = source.find_child_by_attribute("w:num", "w:numId", id.c_str());
    const xml_node abstract = source.find_child_by_attribute(
        "w:abstractNum", "w:abstractNumId", WordXml::val(number.child("w:abstractNumId")));
    if (!abstract)
        return m_numbers.emplace(id, "0").first->second;

    const std::string mapped = std::to_string(++m_last.number);
    m_numbers.emplace(id, mapped);
    const std::string abstractNumber = abstractNumberFor(abstract);
    const xml_node after = root.child("w:numIdMacAtCleanup");
    xml_node copy = after ? root.insert_copy_before(number, after) : root.append_copy(number);
    WordXml::setAttribute(copy, "w:numId", mapped);
    WordXml::setAttribute(copy.child("w:abstractNumId"), "w:val", abstractNumber);
    mapStyles(copy);
    return mapped;
}

std::string clsWordNumberingImport::abstractNumberFor(const xml_node &abstract)
{
    const std::string id = abstract.attribute("w:abstractNumId").value();
    const auto known = m_abstractNumbers.find(id);
    if (known != m_abstractNumbers.end())
        return known->second;
    const std::string mapped = std::to_string(++m_last.abstractNumber);
    m_abstractNumbers.emplace(id, mapped);

    xml_node root = targetRoot();
    const xml_node firstNumber = root.child("w:num"); // all definitions precede all lists
    const xml_node cleanup = root.child("w:numIdMacAtCleanup");
    xml_node copy = firstNumber ? root.insert_copy_before(abstract, firstNumber)
        : cleanup               ? root.insert_copy_before(abstract, cleanup)
                                : root.append_copy(abstract);
    WordXml::setAttribute(copy, "w:abstractNumId", mapped);
    if (const xml_node identity = copy.child("w:nsid"))
        WordXml::setAttribute(identity, "w:val", listIdentity(m_last.abstractNumber));
    for (xml_node level : copy.children("w:lvl"))
        level.remove_child("w:lvlPicBulletId"); // the picture is not copied; the bullet's text is
    mapStyles(copy);
    return mapped;
}

void clsWordNumberingImport::mapStyles(xml_node node)
{
    std::vector<xml_node> gone;
    for (xml_node child : node.children()) {
        const bool isReference = WordXml::is(child, "w:pStyle") || WordXml::is(child, "w:rStyle")
            || WordXml::is(child, "w:styleLink") || WordXml::is(child, "w:numStyleLink");
        if (!isReference) {
            mapStyles(child);
            continue;
        }
        const std::string style = m_styles(WordXml::val(child));
        if (style.empty())
            gone.push_back(child);
        else
            WordXml::setAttribute(child, "w:val", style);
    }
    for (const xml_node &child : gone)
        node.remove_child(child);
}
