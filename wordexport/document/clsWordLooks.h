#pragma once

#include "wordexport/document/clsTextLayout.h"

#include <QByteArray>

#include <pugixml.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The properties of a text's look that decide how much room it takes: sizes, weights, indents, spaces, tabs. From its
/// direct formatting, otherwise from the character, paragraph and table styles, otherwise from the document's defaults.
class clsWordLooks {
public:
    struct Run {
        std::optional<int> halfPoints;
        std::optional<bool> bold;
        std::optional<bool> capitals;
        std::optional<bool> hidden;

        void takeOver(const Run &stronger);
    };

    struct Paragraph {
        std::optional<int> left;
        std::optional<int> right;
        std::optional<int> firstLine;
        std::optional<int> before;
        std::optional<int> after;
        std::optional<int> line;
        std::optional<std::string> lineRule;
        std::map<int, std::optional<TextLayout::Tab>> tabs; ///< by position; one without a value is removed
        Run run;

        void takeOver(const Paragraph &stronger);
    };

    struct Margins {
        std::optional<int> left;
        std::optional<int> right;
        std::optional<int> top;
        std::optional<int> bottom;

        void takeOver(const Margins &stronger);
        /// The margins in an element w:tblCellMar or w:tcMar.
        static Margins saidBy(const pugi::xml_node &margins);
    };

    explicit clsWordLooks(const pugi::xml_node &styles);
    /// The looks from the bytes of a styles part. All sheets of an export have the same styles, so the last result is
    /// cached.
    static std::shared_ptr<const clsWordLooks> ofStyles(const QByteArray &styles);

    /// The look of a paragraph that has only a style.
    const Paragraph &ofStyles(const char *paragraphStyle, const std::string &tableStyle) const;
    /// The look of a paragraph, and of plain text in it; `tableStyle` is the style of the table it is in, if any.
    Paragraph ofParagraph(const pugi::xml_node &paragraph, const std::string &tableStyle) const;
    /// The look of a run in a paragraph with that look.
    Run ofRun(const pugi::xml_node &format, const Run &paragraph) const;
    /// The margins of the cells of a table.
    Margins ofCells(const pugi::xml_node &table) const;

private:
    struct Style {
        std::string basedOn;
        Paragraph look;
        Margins margins;
    };

    static Run runSaidBy(const pugi::xml_node &format);
    static Paragraph paragraphSaidBy(const pugi::xml_node &properties);
    std::vector<const Style *> chainOf(const std::string &id, const char *type) const;

    std::map<std::string, Style> m_styles;
    std::map<std::string, std::string> m_defaults; ///< the default style of each type
    Paragraph m_documentDefault;
    /// The looks of paragraphs by paragraph and table style, cached.
    mutable std::map<std::pair<std::string, std::string>, Paragraph> m_byStyles;
};
