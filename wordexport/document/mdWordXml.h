#pragma once

#include <QString>

#include <pugixml.hpp>

#include <array>
#include <cstring>
#include <string>

/// The basics of a document's XML for this layer: how it is read and written, which elements are only wrappers, and the
/// order of the children of property elements.
namespace WordXml {

/// Without these flags, text that consists of blanks would be lost in reading.
inline constexpr unsigned ParseFlags
    = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_declaration | pugi::parse_comments | pugi::parse_pi;

inline constexpr const char *MainNamespace = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
inline constexpr const char *StrictNamespace = "http://purl.oclc.org/ooxml/wordprocessingml/main";
inline constexpr const char *RelationshipNamespace
    = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

inline bool isName(const char *own, const char *name)
{
    // Most names differ in their third character: a function call would take longer than the comparison.
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

/// The first children of several names, in one pass: separate look-ups would each start at the front.
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

/// The value of an attribute `w:val`; empty if there is none.
inline const char *val(const pugi::xml_node &node)
{
    return node.attribute("w:val").value();
}

/// Sets an attribute, adding it if missing.
void setAttribute(pugi::xml_node node, const char *name, const char *value);
inline void setAttribute(pugi::xml_node node, const char *name, const std::string &value)
{
    setAttribute(node, name, value.c_str());
}

/// The value of an on/off property: without a value it is on.
bool isOn(const pugi::xml_node &property);

/// An element that only wraps others of the same level (a content control, a hyperlink, an insertion): its content
/// belongs to the surrounding level. Deleted text is not a wrapper, so it is not visible.
bool isWrapper(const pugi::xml_node &node);

/// Tests for an item of a level.
using ItemTest = bool (*)(const pugi::xml_node &);
bool isBlock(const pugi::xml_node &node); ///< a paragraph or a table
bool isRow(const pugi::xml_node &node);
bool isCell(const pugi::xml_node &node);
bool isRun(const pugi::xml_node &node);

/// The first and last item in a container, the items after and before an item in the same container, and the container
/// of an item; wrappers are transparent.
pugi::xml_node firstItem(const pugi::xml_node &container, ItemTest isItem);
pugi::xml_node lastItem(const pugi::xml_node &container, ItemTest isItem);
pugi::xml_node nextItem(const pugi::xml_node &item, ItemTest isItem);
pugi::xml_node previousItem(const pugi::xml_node &item, ItemTest isItem);
pugi::xml_node containerOf(const pugi::xml_node &item);

/// The nearest ancestor with that name, or a null node.
pugi::xml_node ancestor(pugi::xml_node node, const char *name);

/// The child of a property element (w:rPr, w:pPr or w:sectPr), added at its proper place if missing: readers reject
/// children in another order.
pugi::xml_node ensureChild(pugi::xml_node parent, const char *name);
/// Adds a child at its proper place, after those of the same name.
pugi::xml_node addChild(pugi::xml_node parent, const char *name);
/// The property element of a paragraph or run, always its first child; added if missing.
pugi::xml_node ensureProperties(pugi::xml_node owner, const char *name);

/// Adds a paragraph of almost no height after a block, or at the front, where the format requires a paragraph but a
/// full sheet has no room for one.
pugi::xml_node insertTinyParagraph(pugi::xml_node container, const pugi::xml_node &after);

/// Removes the characters that XML can't contain: control characters except tab, line feed and carriage return,
/// unpaired surrogates, and the two non-characters.
QString withoutForbiddenCharacters(const QString &text);

/// Removes everything in a node, one leaf at a time: the library's own removal is recursive, and a tree from an unknown
/// document may be deeper than the stack.
void removeContent(pugi::xml_node node);

/// The nesting depth of a part, at most `limit`.
int depth(const pugi::xml_node &root, int limit);

} // namespace WordXml
