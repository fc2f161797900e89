#pragma once

#include <QByteArray>

#include <pugixml.hpp>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

/// Whether a text is bold: from its direct formatting, otherwise from the character and paragraph styles.
class clsWordBoldness {
public:
    /// `styles` is the root of the styles part; a null node if the document has none.
    explicit clsWordBoldness(const pugi::xml_node &styles);
    /// The boldness from the bytes of a styles part. All sheets of an export have the same styles, so the last result
    /// is cached.
    static std::shared_ptr<const clsWordBoldness> ofStyles(const QByteArray &styles);

    /// `format` is the w:rPr of the text, `paragraph` its paragraph.
    bool isBold(const pugi::xml_node &format, const pugi::xml_node &paragraph) const;

private:
    struct Style {
        std::string basedOn;
        std::optional<bool> bold;
    };

    std::optional<bool> ofStyle(const std::string &id) const;

    std::unordered_map<std::string, Style> m_styles;
    std::string m_defaultParagraphStyle;
    bool m_documentDefault = false;
};
