#pragma once

#include "wordexport/document/clsTextLayout.h"
#include "wordexport/document/clsWordLooks.h"
#include "wordexport/document/clsWordTyped.h"

#include <QString>

#include <pugixml.hpp>

#include <string>
#include <vector>

/// The text of a table cell with everything that decides its height: measures it at smaller sizes of the typed text,
/// and applies a smaller size.
class clsWordCellText {
public:
    struct Place {
        int width; ///< twips, without the cell's margins
        std::string tableStyle;
    };
    /// A typed text of the cell: the replacement of one placeholder, or all text typed at the cursor.
    struct Typed {
        QString placeholder;
        int halfPoints; ///< its largest size
    };
    struct Measure {
        int height = 0; ///< twips
        int lines = 0; ///< of the paragraphs that contain typed text
        int brokenWords = 0; ///< with typed text in them
        int brokenAmounts = 0;
        bool tooNarrow = false;
    };

    /// Text is never made smaller than this.
    static constexpr int SmallestHalfPoints = 12;

    /// A quick check: the mark of the first text typed into the cell; null if there is none.
    static const clsWordTyped::Mark *firstTyped(const pugi::xml_node &cell, const clsWordTyped &typed);

    /// A quick check for a cell with only a short typed text, as in most grid cells: does it fit on one line, in that
    /// height in twips? Also false if only an exact measurement can decide.
    static bool fitsAtAGlance(
        const pugi::xml_node &cell, const Place &place, int room, const clsWordLooks &looks, const clsWordTyped &typed);

    clsWordCellText(const pugi::xml_node &cell, const Place &place, const clsWordLooks &looks, clsWordTyped &typed);

    /// The same for a paragraph outside tables.
    static clsWordCellText ofParagraph(
        const pugi::xml_node &paragraph, const Place &place, const clsWordLooks &looks, clsWordTyped &typed);

    const std::vector<Typed> &typedTexts() const { return m_texts; }
    /// The number of half points by which the typed text can be reduced until all of it has the smallest size.
    int mostLess() const;
    /// The height of the text with the typed text reduced by `less` half points.
    Measure measure(int less) const;
    /// The heights of its lines at the present size, including the spaces between paragraphs, and of its tables.
    std::vector<int> lineHeights() const;
    /// The space above its first paragraph, included in these heights.
    int spaceAbove() const { return m_paragraphs.empty() ? 0 : m_paragraphs.front().before; }
    /// Reduces the typed text in the document by `less` half points, and exact line heights of its paragraphs with it.
    void shrink(int less);

    static int shrunk(int halfPoints, int less);

private:
    clsWordCellText(const Place &place, clsWordTyped &typed);

    struct Piece {
        pugi::xml_node run;
        size_t from; ///< index of its first character in the paragraph
        size_t to;
        int at; ///< its start as a position of the paragraph
        bool typed;
        bool behindOthers; ///< whether it is preceded by other text in its run, which must then be split
    };
    struct Paragraph {
        pugi::xml_node node;
        TextLayout::Paragraph layout;
        std::vector<Piece> pieces;
        int before = 0;
        int after = 0;
        int line = 240;
        std::string lineRule;

        bool holdsTyped() const;
        TextLayout::Paragraph at(int less) const;
        int exactLine(int less) const;
        int lineHeight(int halfPoints, int less) const;
    };

    void readParagraph(const pugi::xml_node &paragraph, const std::string &tableStyle, const clsWordLooks &looks);
    void addPiece(Paragraph &paragraph, const Piece &piece, const std::u32string &text, const clsWordLooks::Run &look);
    void note(const QString &placeholder, int halfPoints);

    int m_width;
    int m_tables = 0; ///< the height of the tables in the cell
    std::vector<Paragraph> m_paragraphs;
    std::vector<Typed> m_texts;
    clsWordTyped &m_typed;
};
