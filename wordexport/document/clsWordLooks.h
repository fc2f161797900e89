#pragma once

#include "wordexport/document/clsTextLayout.h"

#include <QByteArray>

#include <pugixml.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What of the look of a text decides how much room it takes: sizes, weights, indents, spaces, tabs. By its own
/// formatting, else by the styles of run, paragraph and table, else by the document's defaults.
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
        std::map<int, std::optional<TextLayout::Tab>> tabs; ///< by their places; one without a value is taken away
        Run run;

        void takeOver(const Paragraph &stronger);
    };

    struct Margins {
        std::optional<int> left;
        std::optional<int> right;
        std::optional<int> top;
        std::optional<int> bottom;

        void takeOver(const Margins &stronger);
        /// Those that an element of margins says (w:tblCellMar or w:tcMar).
        static Margins saidBy(const pugi::xml_node &margins);
    };

    explicit clsWordLooks(const pugi::xml_node &styles);
    /// The looks that the bytes of a styles part make. All sheets of an export have the same styles, so the last answer
    /// is kept.
    static std::shared_ptr<const clsWordLooks> ofStyles(const QByteArray &styles);

    /// The look of a paragraph, in a table of that style where it stands in one; its run is that of plain text in it.
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
    const Paragraph &lookOfStyles(const char *paragraphStyle, const std::string &tableStyle) const;

    std::map<std::string, Style> m_styles;
    std::map<std::string, std::string> m_defaults; ///< the default style of each type
    Paragraph m_documentDefault;
    /// By the styles of paragraph and table: those that were asked for.
    mutable std::map<std::pair<std::string, std::string>, Paragraph> m_ofStyles;
};
