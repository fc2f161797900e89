#include "wordexport/document/clsPlainText.h"

#include "wordexport/document/clsWordContentMap.h"
#include "wordexport/document/mdWordXml.h"

#include <string_view>

using pugi::xml_node;

namespace {

constexpr QByteArrayView BodyBegin("<w:body>");
constexpr QByteArrayView TextEnd("</w:body></w:document>");
constexpr QByteArrayView ParagraphEnd("</w:p>");

/// Whether the element has exactly one attribute, with this name and value.
bool hasOnly(const xml_node &node, const char *attribute, const char *value)
{
    const pugi::xml_attribute first = node.first_attribute();
    return std::strcmp(first.name(), attribute) == 0 && std::strcmp(first.value(), value) == 0
        && !first.next_attribute();
}

bool isOfTheFormat(const char *name)
{
    return std::strncmp(name, "w:", 2) == 0 || std::strncmp(name, "xml:", 4) == 0;
}

bool isPlain(const xml_node &node)
{
    if (!WordXml::isElement(node))
        return node.type() == pugi::node_pcdata;
    const auto attributes = node.attributes();
    return isOfTheFormat(node.name()) && !WordXml::is(node, "w:sectPr") && mdStandsAsItIs(node)
        && std::all_of(attributes.begin(), attributes.end(),
            [](const pugi::xml_attribute &attribute) { return isOfTheFormat(attribute.name()); })
        && std::all_of(node.begin(), node.end(), isPlain);
}

bool holdsParagraph(const xml_node &node)
{
    return std::any_of(node.begin(), node.end(),
        [](const xml_node &child) { return WordXml::is(child, "w:p") || holdsParagraph(child); });
}

bool isSection(const xml_node &node)
{
    return WordXml::is(node, "w:sectPr") && !node.first_attribute()
        && std::all_of(node.begin(), node.end(), [](const xml_node &child) { return isPlain(child); });
}

/// The position of the last start tag of that name; -1 if there is none.
qsizetype lastStartOf(QByteArrayView tag, QByteArrayView text)
{
    constexpr QByteArrayView Ends(" />");
    for (qsizetype at = text.lastIndexOf(tag); at >= 0; at = at > 0 ? text.lastIndexOf(tag, at - 1) : -1)
        if (const qsizetype end = at + tag.size(); end < text.size() && Ends.contains(text[end]))
            return at;
    return -1;
}

/// The position of the paragraph at the end of a text; -1 if it doesn't end with one.
qsizetype startOfLastParagraph(QByteArrayView text)
{
    const qsizetype start = lastStartOf("<w:p", text);
    const bool isEmpty = start >= 0 && text.sliced(start) == QByteArrayView("<w:p/>");
    return isEmpty || text.endsWith(ParagraphEnd) ? start : -1;
}

} // namespace

bool mdIsPlainText(const pugi::xml_document &mainPart)
{
    const xml_node root = mainPart.document_element();
    const xml_node body = root.first_child();
    if (root.previous_sibling().type() != pugi::node_declaration || root.previous_sibling().previous_sibling()
        || root.next_sibling() || !hasOnly(root, "xmlns:w", WordXml::MainNamespace) || body.next_sibling()
        || !WordXml::is(body, "w:body") || body.first_attribute())
        return false;
    const xml_node section = body.last_child();
    const xml_node lastBlock = section.previous_sibling();
    if (!isSection(section) || !WordXml::is(lastBlock, "w:p") || holdsParagraph(lastBlock)
        || (WordXml::is(lastBlock.previous_sibling(), "w:p") && holdsParagraph(lastBlock.previous_sibling())))
        return false;
    for (xml_node block = body.first_child(); block != section; block = block.next_sibling())
        if (!WordXml::isElement(block) || !isPlain(block))
            return false;
    return true;
}

std::optional<clsPlainBody> mdPlainBody(QByteArrayView mainPart)
{
    const qsizetype begin = mainPart.indexOf(BodyBegin) + BodyBegin.size();
    if (begin < BodyBegin.size() || !mainPart.endsWith(TextEnd))
        return {};
    const QByteArrayView body = mainPart.sliced(begin).chopped(TextEnd.size());
    const qsizetype section = lastStartOf("<w:sectPr", body);
    if (section < 0)
        return {};
    const QByteArrayView blocks = body.first(section);
    qsizetype end = startOfLastParagraph(blocks);
    if (end < 0)
        return {};
    if (const qsizetype before = startOfLastParagraph(blocks.first(end)); before >= 0)
        end = before;
    return clsPlainBody {blocks.first(end), blocks.sliced(end), body.sliced(section)};
}
