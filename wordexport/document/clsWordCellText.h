#pragma once

#include "wordexport/document/clsTextLayout.h"
#include "wordexport/document/clsWordLooks.h"
#include "wordexport/document/clsWordTyped.h"

#include <QString>

#include <pugixml.hpp>

#include <string>
#include <vector>

/// The text of a table cell with all that decides how much room it takes: how high it stands at which size of the typed
/// text, and making that smaller.
class clsWordCellText {
public:
    struct Place {
        int width; ///< twips, less the cell's margins
        std::string tableStyle;
    };
    /// Some typed text of the cell: that in place of one placeholder, or all that was typed at the cursor.
    struct Typed {
        QString placeholder;
        int halfPoints; ///< its largest size
    };
    struct Measure {
        int height = 0; ///< twips
        int lines = 0; ///< of the paragraphs that hold typed text
        int brokenWords = 0; ///< that typed text is in
        int brokenAmounts = 0;
        bool tooNarrow = false;
    };

    /// No text is made smaller than this.
    static constexpr int SmallestHalfPoints = 12;

    /// A quick look: was anything typed into the cell?
    static bool holdsTyped(const pugi::xml_node &cell, const clsWordTyped &typed);

    clsWordCellText(const pugi::xml_node &cell, const Place &place, const clsWordLooks &looks, clsWordTyped &typed);

    /// The same of a paragraph that stands in no table.
    static clsWordCellText ofParagraph(
        const pugi::xml_node &paragraph, const Place &place, const clsWordLooks &looks, clsWordTyped &typed);

    const std::vector<Typed> &typedTexts() const { return m_texts; }
    /// By how many half points the typed text can become smaller before all of it is at its smallest.
    int mostLess() const;
    /// The room that the text takes with the typed text so many half points smaller.
    Measure measure(int less) const;
    /// The heights of its lines as it stands, with the spaces between the paragraphs, and of its tables.
    std::vector<int> lineHeights() const;
    /// The space above its first paragraph, which the heights have too.
    int spaceAbove() const { return m_paragraphs.empty() ? 0 : m_paragraphs.front().before; }
    /// Makes the typed text so much smaller in the document, and the exact lines of its paragraphs with it.
    void shrink(int less);

    static int shrunk(int halfPoints, int less);

private:
    clsWordCellText(const Place &place, clsWordTyped &typed);

    struct Piece {
        pugi::xml_node run;
        size_t from; ///< of the characters of the paragraph
        size_t to;
        int at; ///< where it begins, as a position of the paragraph
        bool typed;
        bool behindOthers; ///< in its run, which then has to be split
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
    void addPiece(Paragraph &paragraph, const Piece &piece, const std::string &text, const clsWordLooks::Run &look);
    void note(const QString &placeholder, int halfPoints);

    int m_width;
    int m_tables = 0; ///< the height of the tables in the cell
    std::vector<Paragraph> m_paragraphs;
    std::vector<Typed> m_texts;
    clsWordTyped &m_typed;
};
