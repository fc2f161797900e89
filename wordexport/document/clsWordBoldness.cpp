#include "wordexport/document/clsWordBoldness.h"

#include "wordexport/document/mdWordXml.h"

namespace {

std::optional<bool> ownBoldness(const pugi::xml_node &format)
{
    const pugi::xml_node bold = format.child("w:b");
    return bold ? std::optional<bool>(WordXml::isOn(bold)) : std::nullopt;
}

} // namespace

clsWordBoldness::clsWordBoldness(const pugi::xml_node &styles)
    : m_documentDefault(ownBoldness(styles.child("w:docDefaults").child("w:rPrDefault").child("w:rPr")).value_or(false))
{
    for (const pugi::xml_node &style : styles.children("w:style")) {
        const char *id = style.attribute("w:styleId").value();
        m_styles[id] = {WordXml::val(style.child("w:basedOn")), ownBoldness(style.child("w:rPr"))};
        const pugi::xml_attribute isDefault = style.attribute("w:default");
        if (isDefault.as_bool() && std::strcmp(style.attribute("w:type").value(), "paragraph") == 0)
            m_defaultParagraphStyle = id;
    }
}

std::shared_ptr<const clsWordBoldness> clsWordBoldness::ofStyles(const QByteArray &styles)
{
    // All sheets of an export have the same styles, but each is a separate document.
    static struct {
        QByteArray styles;
        std::shared_ptr<const clsWordBoldness> boldness;
    } last;
    if (!last.boldness || last.styles != styles) {
        pugi::xml_document tree;
        tree.load_buffer(styles.constData(), size_t(styles.size()), WordXml::ParseFlags);
        last = {styles, std::make_shared<clsWordBoldness>(tree.document_element())};
    }
    return last.boldness;
}

std::optional<bool> clsWordBoldness::ofStyle(const std::string &id) const
{
    // A chain longer than the number of styles is a cycle.
    auto style = m_styles.find(id);
    for (size_t steps = 0; style != m_styles.end() && steps < m_styles.size(); ++steps) {
        if (style->second.bold)
            return style->second.bold;
        style = m_styles.find(style->second.basedOn);
    }
    return {};
}

bool clsWordBoldness::isBold(const pugi::xml_node &format, const pugi::xml_node &paragraph) const
{
    if (const std::optional<bool> own = ownBoldness(format))
        return *own;
    const std::string paragraphStyle = WordXml::val(paragraph.child("w:pPr").child("w:pStyle"));
    const std::optional<bool> ofParagraph = ofStyle(paragraphStyle.empty() ? m_defaultParagraphStyle : paragraphStyle);
    const std::optional<bool> ofRun = ofStyle(WordXml::val(format.child("w:rStyle")));
    if (!ofParagraph && !ofRun)
        return m_documentDefault;
    // Bold is a toggle between the two styles: a bold run style in a bold paragraph style is not bold.
    return ofParagraph.value_or(false) != ofRun.value_or(false);
}
