#include "wordexport/document/clsWordIdentities.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <cstdlib>

namespace {

// Larger numbers are ignored: they don't come from counting, and counting on from them would leave the format's range.
// New numbers never reach them.
constexpr long Countable = 1000000000;

void raise(long &last, const char *number)
{
    const long value = std::strtol(number, nullptr, 10);
    if (value <= Countable)
        last = std::max(last, value);
}

} // namespace

clsWordIdentities::clsWordIdentities(clsWordPackage &document)
{
    scan(document.partXml(document.mainPart()).document_element());
    for (const clsWordPackage::Relationship &relation : document.relationships(document.mainPart()))
        if (!relation.external && (relation.type.ends_with("/header") || relation.type.ends_with("/footer")))
            scan(document.partXml(document.targetOf(document.mainPart(), relation)).document_element());
}

void clsWordIdentities::scan(const pugi::xml_node &node)
{
    if (WordXml::is(node, "wp:docPr"))
        raise(m_lastDrawing, node.attribute("id").value());
    else if (WordXml::is(node, "w:bookmarkStart")) {
        raise(m_lastBookmark, node.attribute("w:id").value());
        m_bookmarkNames.insert(node.attribute("w:name").value());
    } else if (WordXml::is(node, "w:sdtPr"))
        raise(m_lastControl, WordXml::val(node.child("w:id")));
    for (const pugi::xml_node &child : node.children())
        if (WordXml::isElement(child))
            scan(child);
}

std::string clsWordIdentities::freeBookmarkName(const std::string &name)
{
    if (m_bookmarkNames.insert(name).second)
        return name;
    int &suffix = m_lastSuffix.try_emplace(name, 1).first->second;
    std::string free;
    do
        free = name + '_' + std::to_string(++suffix);
    while (!m_bookmarkNames.insert(free).second);
    return free;
}
