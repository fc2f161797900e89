#pragma once

#include <vector>

/// Lays out text in lines as word processors do: each line is filled, broken at blanks and after hyphens, and a word
/// wider than a whole line is broken between letters. All in integers, so that the lines are the same on every machine.
/// Independent of documents: the caller passes the paragraph's content and the available width.
///
/// The unit is a sixth of a twip, to which the word processor that prints the forms rounds each character's width. More
/// exact sums would lead to different line counts.
namespace TextLayout {

struct Character {
    char32_t code;
    int halfPoints; ///< the font size
    bool bold;
};

/// A line break within a paragraph.
inline constexpr char32_t LineBreak = U'\v';

struct Tab {
    enum Align { Left, Centre, Right };
    int twips; ///< from the edge of the area, regardless of the paragraph's indent
    Align align;
};

struct Paragraph {
    std::vector<Character> text;
    int left = 0; ///< indents, in twips
    int right = 0;
    int firstLine = 0; ///< in addition on the first line; may be negative
    std::vector<Tab> tabs; ///< in the order of their positions
    int defaultTab = 720;
    int markHalfPoints = 20; ///< the size if there is no text
};

struct Lines {
    /// The largest size on each line, in half points.
    std::vector<int> sizes;
    /// How many words, and how many amounts, had to be broken between letters.
    int brokenWords = 0;
    int brokenAmounts = 0;
    /// A character is wider than the whole line.
    bool tooNarrow = false;

    int count() const { return int(sizes.size()); }
};

/// The lines of a paragraph in an area of that width in twips.
Lines layOut(const Paragraph &paragraph, int width);

/// The room on a line of that width in twips, in sixths of a twip.
int roomOnLine(int width);

/// The width of a character, in sixths of a twip.
int widthOf(const Character &character);

} // namespace TextLayout
