#pragma once

#include <QByteArray>

#include <pugixml.hpp>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

/// Whether a text is bold: by its own formatting, else by the styles of run and paragraph.
class clsWordBoldness {
public:
    /// `styles` is the root of the styles part; a null node where the document has none.
    explicit clsWordBoldness(const pugi::xml_node &styles);
    /// The boldness that the bytes of a styles part make. All sheets of an export have the same styles, so the last
    /// answer is kept.
    static std::shared_ptr<const clsWordBoldness> ofStyles(const QByteArray &styles);

    /// `format` is the w:rPr of the text, `paragraph` the paragraph that it stands in.
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
