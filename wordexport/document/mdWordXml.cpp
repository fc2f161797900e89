#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <span>
#include <utility>

namespace WordXml {

namespace {

using pugi::xml_node;

constexpr const char *RunPropertyOrder[] = {
    "w:rStyle",
    "w:rFonts",
    "w:b",
    "w:bCs",
    "w:i",
    "w:iCs",
    "w:caps",
    "w:smallCaps",
    "w:strike",
    "w:dstrike",
    "w:outline",
    "w:shadow",
    "w:emboss",
    "w:imprint",
    "w:noProof",
    "w:snapToGrid",
    "w:vanish",
    "w:webHidden",
    "w:color",
    "w:spacing",
    "w:w",
    "w:kern",
    "w:position",
    "w:sz",
    "w:szCs",
    "w:highlight",
    "w:u",
    "w:effect",
    "w:bdr",
    "w:shd",
    "w:fitText",
    "w:vertAlign",
    "w:rtl",
    "w:cs",
    "w:em",
    "w:lang",
    "w:eastAsianLayout",
    "w:specVanish",
    "w:oMath",
    "w:rPrChange",
};

constexpr const char *ParagraphPropertyOrder[] = {
    "w:pStyle",
    "w:keepNext",
    "w:keepLines",
    "w:pageBreakBefore",
    "w:framePr",
    "w:widowControl",
    "w:numPr",
    "w:suppressLineNumbers",
    "w:pBdr",
    "w:shd",
    "w:tabs",
    "w:suppressAutoHyphens",
    "w:kinsoku",
    "w:wordWrap",
    "w:overflowPunct",
    "w:topLinePunct",
    "w:autoSpaceDE",
    "w:autoSpaceDN",
    "w:bidi",
    "w:adjustRightInd",
    "w:snapToGrid",
    "w:spacing",
    "w:ind",
    "w:contextualSpacing",
    "w:mirrorIndents",
    "w:suppressOverlap",
    "w:jc",
    "w:textDirection",
    "w:textAlignment",
    "w:textboxTightWrap",
    "w:outlineLvl",
    "w:divId",
    "w:cnfStyle",
    "w:rPr",
    "w:sectPr",
    "w:pPrChange",
};

constexpr const char *SectionPropertyOrder[] = {
    "w:headerReference",
    "w:footerReference",
    "w:footnotePr",
    "w:endnotePr",
    "w:type",
    "w:pgSz",
    "w:pgMar",
    "w:paperSrc",
    "w:pgBorders",
    "w:lnNumType",
    "w:pgNumType",
    "w:cols",
    "w:formProt",
    "w:vAlign",
    "w:noEndnote",
    "w:titlePg",
    "w:textDirection",
    "w:bidi",
    "w:rtlGutter",
    "w:docGrid",
    "w:printerSettings",
    "w:sectPrChange",
};

constexpr const char *TablePropertyOrder[] = {
    "w:tblStyle",
    "w:tblpPr",
    "w:tblOverlap",
    "w:bidiVisual",
    "w:tblStyleRowBandSize",
    "w:tblStyleColBandSize",
    "w:tblW",
    "w:jc",
    "w:tblCellSpacing",
    "w:tblInd",
    "w:tblBorders",
    "w:shd",
    "w:tblLayout",
    "w:tblCellMar",
    "w:tblLook",
    "w:tblCaption",
    "w:tblDescription",
    "w:tblPrChange",
};

std::span<const char *const> childOrder(const xml_node &parent)
{
    if (is(parent, "w:rPr"))
        return RunPropertyOrder;
    if (is(parent, "w:pPr"))
        return ParagraphPropertyOrder;
    if (is(parent, "w:tblPr"))
        return TablePropertyOrder;
    return SectionPropertyOrder;
}

size_t rankOf(std::span<const char *const> order, const char *name)
{
    const auto at
        = std::find_if(order.begin(), order.end(), [name](const char *known) { return std::strcmp(known, name) == 0; });
    return size_t(at - order.begin());
}

constexpr const char *Wrappers[] = {
    "w:sdt",
    "w:sdtContent",
    "w:customXml",
    "w:smartTag",
    "w:ins",
    "w:moveTo",
    "w:hyperlink",
    "w:fldSimple",
    "w:dir",
    "w:bdo",
};

// The node itself if it is an item, otherwise the first or last item wrapped in it.
xml_node itemIn(const xml_node &node, ItemTest isItem, bool backwards)
{
    if (isItem(node))
        return node;
    if (!isWrapper(node))
        return {};
    for (xml_node child = backwards ? node.last_child() : node.first_child(); child;
         child = backwards ? child.previous_sibling() : child.next_sibling())
        if (const xml_node found = itemIn(child, isItem, backwards))
            return found;
    return {};
}

xml_node neighbour(const xml_node &item, ItemTest isItem, bool backwards)
{
    xml_node node = item;
    for (;;) {
        xml_node next = backwards ? node.previous_sibling() : node.next_sibling();
        while (!next) {
            node = node.parent();
            if (!isWrapper(node))
                return {};
            next = backwards ? node.previous_sibling() : node.next_sibling();
        }
        if (const xml_node found = itemIn(next, isItem, backwards))
            return found;
        node = next;
    }
}

} // namespace

void setAttribute(xml_node node, const char *name, const char *value)
{
    pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute)
        attribute = node.append_attribute(name);
    attribute.set_value(value);
}

bool isOn(const xml_node &property)
{
    const char *value = val(property);
    return std::strcmp(value, "0") != 0 && std::strcmp(value, "false") != 0 && std::strcmp(value, "off") != 0;
}

bool isWrapper(const xml_node &node)
{
    // Called for every element that is not an item, mostly properties: their initials allow a quick test.
    const char *name = node.name();
    if (name[0] != 'w' || name[1] != ':' || name[2] == 'p' || name[2] == 't' || name[2] == 'r')
        return false;
    return std::any_of(std::begin(Wrappers), std::end(Wrappers),
        [name](const char *wrapper) { return std::strcmp(name, wrapper) == 0; });
}

bool isBlock(const xml_node &node)
{
    return is(node, "w:p") || is(node, "w:tbl");
}

bool isRow(const xml_node &node)
{
    return is(node, "w:tr");
}

bool isCell(const xml_node &node)
{
    return is(node, "w:tc");
}

bool isRun(const xml_node &node)
{
    return is(node, "w:r");
}

xml_node firstItem(const xml_node &container, ItemTest isItem)
{
    // Without the library's iterators, which take three calls per step.
    for (xml_node child = container.first_child(); child; child = child.next_sibling())
        if (const xml_node found = itemIn(child, isItem, false))
            return found;
    return {};
}

xml_node lastItem(const xml_node &container, ItemTest isItem)
{
    for (xml_node child = container.last_child(); child; child = child.previous_sibling())
        if (const xml_node found = itemIn(child, isItem, true))
            return found;
    return {};
}

xml_node nextItem(const xml_node &item, ItemTest isItem)
{
    return neighbour(item, isItem, false);
}

xml_node previousItem(const xml_node &item, ItemTest isItem)
{
    return neighbour(item, isItem, true);
}

xml_node containerOf(const xml_node &item)
{
    xml_node container = item.parent();
    while (isWrapper(container))
        container = container.parent();
    return container;
}

xml_node ancestor(xml_node node, const char *name)
{
    while (node && !is(node, name))
        node = node.parent();
    return node;
}

xml_node ensureChild(xml_node parent, const char *name)
{
    const xml_node present = parent.child(name);
    return present ? present : addChild(parent, name);
}

xml_node addChild(xml_node parent, const char *name)
{
    const std::span<const char *const> order = childOrder(parent);
    const size_t rank = rankOf(order, name);
    for (const xml_node &child : parent.children())
        if (isElement(child) && rankOf(order, child.name()) > rank)
            return parent.insert_child_before(name, child);
    return parent.append_child(name);
}

xml_node ensureProperties(xml_node owner, const char *name)
{
    const xml_node present = owner.child(name);
    return present ? present : owner.prepend_child(name);
}

xml_node insertTinyParagraph(xml_node container, const xml_node &after)
{
    xml_node paragraph = after ? container.insert_child_after("w:p", after) : container.prepend_child("w:p");
    xml_node properties = paragraph.append_child("w:pPr");
    xml_node spacing = properties.append_child("w:spacing");
    for (const auto &[name, value] : {std::pair("w:before", "0"), std::pair("w:after", "0"), std::pair("w:line", "20"),
             std::pair("w:lineRule", "exact")})
        spacing.append_attribute(name) = value;
    properties.append_child("w:rPr").append_child("w:sz").append_attribute("w:val") = "2";
    return paragraph;
}

QString withoutForbiddenCharacters(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            kept += c;
            kept += text[++i];
            continue;
        }
        const char16_t code = c.unicode();
        const bool control = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
        if (!control && !c.isSurrogate() && code != 0xFFFE && code != 0xFFFF)
            kept += c;
    }
    return kept;
}

void removeContent(xml_node node)
{
    xml_node leaf = node;
    while (node.first_child()) {
        while (leaf.first_child())
            leaf = leaf.first_child();
        xml_node parent = leaf.parent();
        parent.remove_child(leaf);
        leaf = parent;
    }
}

int depth(const xml_node &root, int limit)
{
    // Not recursive, like the library's own walk: the depth to be measured could overflow the stack.
    class clsDepth final : public pugi::xml_tree_walker {
    public:
        explicit clsDepth(int most)
            : m_limit(most)
        { }
        bool for_each(xml_node &) override
        {
            deepest = std::max(deepest, depth() + 1);
            return deepest < m_limit;
        }
        int deepest = 0;

    private:
        int m_limit;
    };
    clsDepth walk(limit);
    xml_node(root).traverse(walk);
    return walk.deepest;
}

} // namespace WordXml
