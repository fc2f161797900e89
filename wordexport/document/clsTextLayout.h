#pragma once

#include <vector>

/// A text laid out in lines as word processors do it: as much on each line as it holds, broken at blanks and behind
/// hyphens, a word that is wider than a whole line broken by letters. All in integers, so that the lines are the same
/// on every machine. It knows no document: what stands in a paragraph, and how wide its place is, it is told.
///
/// The unit is a sixth of a twip. That is what the word processor that prints the forms rounds each character's width
/// to: whoever adds up more exactly counts other lines.
namespace TextLayout {

struct Character {
    char32_t code;
    int halfPoints; ///< the size
    bool bold;
};

/// What stands for a line break within a paragraph.
inline constexpr char32_t LineBreak = U'\v';

struct Tab {
    enum Align { Left, Centre, Right };
    int twips; ///< from the edge of the place, whatever the paragraph's indent is
    Align align;
};

struct Paragraph {
    std::vector<Character> text;
    int left = 0; ///< indents, in twips
    int right = 0;
    int firstLine = 0; ///< more on the first line; less where negative
    std::vector<Tab> tabs; ///< in the order of their places
    int defaultTab = 720;
    int markHalfPoints = 20; ///< the size where there is no text
};

struct Lines {
    /// The largest size of each line, in half points.
    std::vector<int> sizes;
    /// How often a word had to be broken by letters, and how often that broke an amount.
    int brokenWords = 0;
    int brokenAmounts = 0;
    /// A character is wider than the whole place.
    bool tooNarrow = false;

    int count() const { return int(sizes.size()); }
};

/// The lines of a paragraph in a place of that width in twips.
Lines layOut(const Paragraph &paragraph, int width);

/// The room on a line that is so many twips wide, in sixths of a twip.
int roomOnLine(int width);

/// The width of a character, in sixths of a twip.
int widthOf(const Character &character);

} // namespace TextLayout
