#include "wordexport/document/clsWordLooks.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>

using pugi::xml_node;

namespace {

// The format's default for a table without a style: 0.08 of an inch at the sides.
constexpr int SideMarginOfNoStyle = 115;

template <class Value> void take(std::optional<Value> &own, const std::optional<Value> &stronger)
{
    if (stronger)
        own = stronger;
}

std::optional<bool> onOff(const xml_node &format, const char *name)
{
    const xml_node property = format.child(name);
    return property ? std::optional<bool>(WordXml::isOn(property)) : std::nullopt;
}

std::optional<int> number(const xml_node &node, const char *name)
{
    const pugi::xml_attribute attribute = node.attribute(name);
    constexpr int Most = 100'000; // more than any page has, so that no file makes the sums overflow
    return attribute ? std::optional<int>(std::clamp(attribute.as_int(), -Most, Most)) : std::nullopt;
}

// Newer programs call left and right start and end.
std::optional<int> number(const xml_node &node, const char *name, const char *newerName)
{
    const std::optional<int> newer = number(node, newerName);
    return newer ? newer : number(node, name);
}

TextLayout::Tab::Align alignOf(const char *value)
{
    if (std::strcmp(value, "right") == 0 || std::strcmp(value, "end") == 0 || std::strcmp(value, "decimal") == 0)
        return TextLayout::Tab::Right;
    return std::strcmp(value, "center") == 0 ? TextLayout::Tab::Centre : TextLayout::Tab::Left;
}

} // namespace

void clsWordLooks::Run::takeOver(const Run &stronger)
{
    take(halfPoints, stronger.halfPoints);
    take(bold, stronger.bold);
    take(capitals, stronger.capitals);
    take(hidden, stronger.hidden);
}

void clsWordLooks::Paragraph::takeOver(const Paragraph &stronger)
{
    take(left, stronger.left);
    take(right, stronger.right);
    take(firstLine, stronger.firstLine);
    take(before, stronger.before);
    take(after, stronger.after);
    take(line, stronger.line);
    take(lineRule, stronger.lineRule);
    for (const auto &[place, tab] : stronger.tabs)
        tabs[place] = tab;
    run.takeOver(stronger.run);
}

void clsWordLooks::Margins::takeOver(const Margins &stronger)
{
    take(left, stronger.left);
    take(right, stronger.right);
    take(top, stronger.top);
    take(bottom, stronger.bottom);
}

clsWordLooks::Margins clsWordLooks::Margins::saidBy(const xml_node &margins)
{
    const auto side = [&margins](const char *name, const char *newerName) {
        const std::optional<int> newer = number(margins.child(newerName), "w:w");
        return newer ? newer : number(margins.child(name), "w:w");
    };
    return {side("w:left", "w:start"), side("w:right", "w:end"), side("w:top", "w:top"), side("w:bottom", "w:bottom")};
}

clsWordLooks::clsWordLooks(const xml_node &styles)
{
    const xml_node defaults = styles.child("w:docDefaults");
    m_documentDefault = paragraphSaidBy(defaults.child("w:pPrDefault").child("w:pPr"));
    m_documentDefault.run = runSaidBy(defaults.child("w:rPrDefault").child("w:rPr"));
    for (const xml_node &style : styles.children("w:style")) {
        const char *id = style.attribute("w:styleId").value();
        Style &known = m_styles[id];
        known.basedOn = WordXml::val(style.child("w:basedOn"));
        known.look = paragraphSaidBy(style.child("w:pPr"));
        known.look.run = runSaidBy(style.child("w:rPr"));
        known.margins = Margins::saidBy(style.child("w:tblPr").child("w:tblCellMar"));
        if (style.attribute("w:default").as_bool())
            m_defaults[style.attribute("w:type").value()] = id;
    }
}

std::shared_ptr<const clsWordLooks> clsWordLooks::ofStyles(const QByteArray &styles)
{
    // All sheets of an export have the same styles, but each is a separate document.
    static struct {
        QByteArray styles;
        std::shared_ptr<const clsWordLooks> looks;
    } last;
    if (!last.looks || last.styles != styles) {
        pugi::xml_document tree;
        tree.load_buffer(styles.constData(), size_t(styles.size()), WordXml::ParseFlags);
        last = {styles, std::make_shared<clsWordLooks>(tree.document_element())};
    }
    return last.looks;
}

clsWordLooks::Run clsWordLooks::runSaidBy(const xml_node &format)
{
    return {number(format.child("w:sz"), "w:val"), onOff(format, "w:b"), onOff(format, "w:caps"),
        onOff(format, "w:vanish")};
}

clsWordLooks::Paragraph clsWordLooks::paragraphSaidBy(const xml_node &properties)
{
    Paragraph look;
    const xml_node indent = properties.child("w:ind");
    look.left = number(indent, "w:left", "w:start");
    look.right = number(indent, "w:right", "w:end");
    look.firstLine = number(indent, "w:firstLine");
    if (const std::optional<int> hanging = number(indent, "w:hanging"))
        look.firstLine = -*hanging;
    const xml_node spacing = properties.child("w:spacing");
    look.before = number(spacing, "w:before");
    look.after = number(spacing, "w:after");
    look.line = number(spacing, "w:line");
    if (const pugi::xml_attribute rule = spacing.attribute("w:lineRule"))
        look.lineRule = rule.value();
    for (const xml_node &tab : properties.child("w:tabs").children("w:tab")) {
        const int place = tab.attribute("w:pos").as_int();
        if (std::strcmp(WordXml::val(tab), "clear") == 0)
            look.tabs[place] = std::nullopt;
        else
            look.tabs[place] = TextLayout::Tab {place, alignOf(WordXml::val(tab))};
    }
    return look;
}

// A style and its base styles, the lowest first. A chain longer than the number of styles is a cycle.
std::vector<const clsWordLooks::Style *> clsWordLooks::chainOf(const std::string &id, const char *type) const
{
    std::vector<const Style *> chain;
    const auto standard = m_defaults.find(type);
    auto style = m_styles.find(!id.empty() || standard == m_defaults.end() ? id : standard->second);
    for (; style != m_styles.end() && chain.size() < m_styles.size(); style = m_styles.find(style->second.basedOn))
        chain.push_back(&style->second);
    std::reverse(chain.begin(), chain.end());
    return chain;
}

const clsWordLooks::Paragraph &clsWordLooks::ofStyles(const char *paragraphStyle, const std::string &tableStyle) const
{
    const auto [known, isNew] = m_byStyles.try_emplace({paragraphStyle, tableStyle}, m_documentDefault);
    Paragraph &look = known->second;
    if (isNew) {
        for (const Style *style : chainOf(tableStyle, "table"))
            look.takeOver(style->look);
        for (const Style *style : chainOf(paragraphStyle, "paragraph"))
            look.takeOver(style->look);
    }
    return look;
}

clsWordLooks::Paragraph clsWordLooks::ofParagraph(const xml_node &paragraph, const std::string &tableStyle) const
{
    const xml_node properties = paragraph.child("w:pPr");
    Paragraph look = ofStyles(WordXml::val(properties.child("w:pStyle")), tableStyle);
    look.takeOver(paragraphSaidBy(properties));
    return look;
}

clsWordLooks::Run clsWordLooks::ofRun(const xml_node &format, const Run &paragraph) const
{
    Run look = paragraph;
    const std::string style = WordXml::val(format.child("w:rStyle"));
    if (!style.empty())
        for (const Style *part : chainOf(style, "character"))
            look.takeOver(part->look.run);
    look.takeOver(runSaidBy(format));
    return look;
}

clsWordLooks::Margins clsWordLooks::ofCells(const xml_node &table) const
{
    const xml_node properties = table.child("w:tblPr");
    const std::vector<const Style *> chain = chainOf(WordXml::val(properties.child("w:tblStyle")), "table");
    Margins margins;
    if (chain.empty())
        margins.left = margins.right = SideMarginOfNoStyle;
    for (const Style *style : chain)
        margins.takeOver(style->margins);
    margins.takeOver(Margins::saidBy(properties.child("w:tblCellMar")));
    return margins;
}
