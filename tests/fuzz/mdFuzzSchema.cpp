#include "tests/fuzz/mdFuzzSchema.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

using Names = std::span<const std::string_view>;

constexpr std::string_view Marks[] = {"w:bookmarkStart", "w:bookmarkEnd", "w:proofErr"};
constexpr std::string_view Blocks[] = {"w:p", "w:tbl", "w:sdt", "w:customXml"};
constexpr std::string_view Rows[] = {"w:tr", "w:sdt", "w:customXml"};
constexpr std::string_view Cells[] = {"w:tc", "w:sdt", "w:customXml"};
constexpr std::string_view Runs[]
    = {"w:r", "w:hyperlink", "w:sdt", "w:smartTag", "w:fldSimple", "w:ins", "w:del", "w:customXml"};
constexpr std::string_view RunContents[] = {
    "w:t", "w:br", "w:tab", "w:cr", "w:sym", "w:noBreakHyphen", "w:fldChar", "w:instrText", "w:delText", "w:drawing"};
constexpr std::string_view Wrappers[]
    = {"w:sdt", "w:sdtContent", "w:customXml", "w:hyperlink", "w:smartTag", "w:fldSimple", "w:ins", "w:del"};

struct Element {
    std::string_view name;
    std::string_view properties; ///< allowed before all others, once
    std::string_view grid; ///< allowed next
    Names contents;
    std::string_view end; ///< allowed after all others, once
};

constexpr Element Elements[] = {
    {"w:body", "", "", Blocks, "w:sectPr"},
    {"w:hdr", "", "", Blocks, ""},
    {"w:tbl", "w:tblPr", "w:tblGrid", Rows, ""},
    {"w:tr", "w:trPr", "", Cells, ""},
    {"w:tc", "w:tcPr", "", Blocks, ""},
    {"w:p", "w:pPr", "", Runs, ""},
    {"w:r", "w:rPr", "", RunContents, ""},
};

template <class List> bool has(const List &list, std::string_view name)
{
    return std::find(std::begin(list), std::end(list), name) != std::end(list);
}

const Element *elementOf(std::string_view name)
{
    const auto *found = std::find_if(
        std::begin(Elements), std::end(Elements), [name](const Element &element) { return element.name == name; });
    return found == std::end(Elements) ? nullptr : found;
}

bool fits(const pugi::xml_node &node, Names contents, const Element &element);

/// A wrapper may contain what its parent may contain; a control has its content in an element of its own.
bool wrapperFits(const pugi::xml_node &node, Names contents)
{
    const std::string_view name = node.name();
    if (name == "w:sdt")
        return fits(node, {}, {name, "w:sdtPr", "w:sdtContent", {}, ""}) && node.child("w:sdtContent")
            && fits(node.child("w:sdtContent"), contents, {});
    return fits(node, contents, {name, "w:customXmlPr", "", {}, ""});
}

bool childFits(const pugi::xml_node &child, Names contents)
{
    const std::string_view name = child.name();
    if (has(Marks, name))
        return !child.first_child();
    if (!has(contents, name))
        return false;
    if (has(Wrappers, name))
        return wrapperFits(child, contents);
    const Element *own = elementOf(name);
    return !own || fits(child, own->contents, *own);
}

bool fits(const pugi::xml_node &node, Names contents, const Element &element)
{
    pugi::xml_node child = node.first_child();
    for (const std::string_view leading : {element.properties, element.grid})
        if (!leading.empty() && leading == child.name())
            child = child.next_sibling();
    for (; child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element)
            return false;
        if (!element.end.empty() && element.end == child.name())
            return !child.next_sibling();
        if (!childFits(child, contents))
            return false;
    }
    return true;
}

/// Adds the minimum content of a new element; `contents` is what its parent may contain.
void fill(pugi::xml_node node, Names contents)
{
    const std::string_view name = node.name();
    if (has(Wrappers, name)) {
        pugi::xml_node holder = name == "w:sdt" ? node.append_child("w:sdtContent") : node;
        fill(holder.append_child(contents.front().data()), contents);
    } else if (name == "w:t") {
        node.text().set("{Name} x");
    } else if (const Element *own = elementOf(name); own && name != "w:p") {
        fill(node.append_child(own->contents.front().data()), own->contents);
    }
}

} // namespace

bool mdFuzzFitsSchema(const pugi::xml_node &container)
{
    const Element *own = elementOf(container.name());
    return own && fits(container, own->contents, *own);
}

bool mdFuzzInsertFitting(pugi::xml_node parent, size_t random)
{
    // A node without a parent is the content of a body.
    const Element *own = parent.type() == pugi::node_document ? &Elements[0] : elementOf(parent.name());
    if (!own)
        return false;
    pugi::xml_node before;
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling())
        if (has(own->contents, child.name()) && (random = random * 31 + 7) % 2)
            before = child;
    const char *name = own->contents[random / 2 % own->contents.size()].data();
    const pugi::xml_node end = own->end.empty() ? pugi::xml_node() : parent.child(own->end.data());
    fill(before   ? parent.insert_child_before(name, before)
            : end ? parent.insert_child_before(name, end)
                  : parent.append_child(name),
        own->contents);
    return true;
}
