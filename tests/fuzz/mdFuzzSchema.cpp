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
    std::string_view properties; ///< may stand before all others, once
    std::string_view grid; ///< may stand next
    Names contents;
    std::string_view end; ///< may stand behind all others, once
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

bool fits(const pugi::xml_node &node, Names contents, const Element &element);

/// A wrapper holds what its parent may hold; a control has its content in an element of its own.
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
    const auto *own = std::find_if(
        std::begin(Elements), std::end(Elements), [name](const Element &element) { return element.name == name; });
    return own == std::end(Elements) || fits(child, own->contents, *own);
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

} // namespace

bool mdFuzzFitsSchema(const pugi::xml_node &container)
{
    const std::string_view name = container.name();
    const auto *own = std::find_if(
        std::begin(Elements), std::end(Elements), [name](const Element &element) { return element.name == name; });
    return own != std::end(Elements) && fits(container, own->contents, *own);
}
