#pragma once

#include <QString>

#include <pugixml.hpp>

#include <array>
#include <cstring>
#include <string>

/// What every room of this layer needs to know about the XML of a document: how it is read and written, which
/// elements only wrap others, and in which order the children of a property element stand.
namespace WordXml {

/// Without these, blanks that stand alone in a text would be lost when a part is read.
inline constexpr unsigned ParseFlags
    = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_declaration | pugi::parse_comments | pugi::parse_pi;

inline constexpr const char *MainNamespace = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
inline constexpr const char *StrictNamespace = "http://purl.oclc.org/ooxml/wordprocessingml/main";
inline constexpr const char *RelationshipNamespace
    = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

inline bool isName(const char *own, const char *name)
{
    // Most of what is asked differs in its third character: a call would take longer than the comparison.
    while (*own == *name && *own) {
        ++own;
        ++name;
    }
    return *own == *name;
}

inline bool is(const pugi::xml_node &node, const char *name)
{
    return isName(node.name(), name);
}

/// The first children of some names, in one walk: a look-up for each would begin at the front each time.
template <size_t Count>
std::array<pugi::xml_node, Count> firstChildren(
    const pugi::xml_node &node, const std::array<const char *, Count> &names)
{
    std::array<pugi::xml_node, Count> found;
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
        const char *own = child.name();
        for (size_t i = 0; i < Count; ++i)
            if (isName(own, names[i])) {
                if (!found[i])
                    found[i] = child;
                break;
            }
    }
    return found;
}

inline bool isElement(const pugi::xml_node &node)
{
    return node.type() == pugi::node_element;
}

/// The value of an attribute `w:val`, empty where there is none.
inline const char *val(const pugi::xml_node &node)
{
    return node.attribute("w:val").value();
}

/// Sets an attribute, adding it where it is missing.
void setAttribute(pugi::xml_node node, const char *name, const char *value);
inline void setAttribute(pugi::xml_node node, const char *name, const std::string &value)
{
    setAttribute(node, name, value.c_str());
}

/// The value of an on/off property: absent value means on.
bool isOn(const pugi::xml_node &property);

/// An element that only wraps others of the same level (a content control, a hyperlink, an insertion): what is in
/// it belongs to the level around it. Deleted text is no such element, and so is not seen.
bool isWrapper(const pugi::xml_node &node);

/// What can be the item of a level.
using ItemTest = bool (*)(const pugi::xml_node &);
bool isBlock(const pugi::xml_node &node); ///< a paragraph or a table
bool isRow(const pugi::xml_node &node);
bool isCell(const pugi::xml_node &node);
bool isRun(const pugi::xml_node &node);

/// The first and last item in a container, the ones after and before an item in the same container, and the
/// container of an item; wrappers are looked through.
pugi::xml_node firstItem(const pugi::xml_node &container, ItemTest isItem);
pugi::xml_node lastItem(const pugi::xml_node &container, ItemTest isItem);
pugi::xml_node nextItem(const pugi::xml_node &item, ItemTest isItem);
pugi::xml_node previousItem(const pugi::xml_node &item, ItemTest isItem);
pugi::xml_node containerOf(const pugi::xml_node &item);

/// The nearest element of that name above a node, or a null node.
pugi::xml_node ancestor(pugi::xml_node node, const char *name);

/// The child of a property element (w:rPr, w:pPr or w:sectPr), added at its proper place where it is missing:
/// readers refuse children in another order.
pugi::xml_node ensureChild(pugi::xml_node parent, const char *name);
/// Adds a child at its proper place, after those of the same name.
pugi::xml_node addChild(pugi::xml_node parent, const char *name);
/// The property element of a paragraph or run, which is always its first child; added where it is missing.
pugi::xml_node ensureProperties(pugi::xml_node owner, const char *name);

/// Adds a paragraph that takes next to no room behind a block, or at the front: where the format demands a paragraph
/// and a full sheet has no room for one.
pugi::xml_node insertTinyParagraph(pugi::xml_node container, const pugi::xml_node &after);

/// Text without what XML can't hold: control characters but tab, line feed and carriage return, halves of
/// surrogate pairs, and the two non-characters.
QString withoutForbiddenCharacters(const QString &text);

/// Takes all out of a node, one leaf at a time: the library's own removal descends a tree by recursion, and one from an
/// unknown document may be deeper than the stack.
void removeContent(pugi::xml_node node);

/// How many levels deep a part is nested; deeper than the limit counts as the limit.
int depth(const pugi::xml_node &root, int limit);

} // namespace WordXml
