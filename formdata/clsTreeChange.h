#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// How the children of one element came from one state to the next, so that either can be had from the other: which
/// have gone and come, with their places, and which texts are others. A text is that of a child, or of a field of it.
class clsSequenceChange {
public:
    struct clsUnit {
        std::uint32_t place;
        std::string image;
    };
    struct clsText {
        static constexpr std::uint32_t Own = 0xFFFFFFFF; ///< the text is the child's own
        std::uint32_t oldPlace;
        std::uint32_t newPlace;
        std::uint32_t field; ///< its place in the child
        std::string_view oldText;
        std::string_view newText;
    };

    std::vector<clsUnit> removed; ///< by their places before
    std::vector<clsUnit> added; ///< by their places after

    void addText(const clsText &text);
    /// The texts in the order of the places, one at a time from `at` on; false at the end.
    bool nextText(size_t &at, clsText &text) const;

    bool isEmpty() const { return removed.empty() && added.empty() && m_texts.empty(); }
    bool movesNothing() const { return removed.empty() && added.empty(); }
    size_t bytes() const;

private:
    std::string m_texts; ///< a list renumbered has thousands
};

/// How a claim came from one state to the next: the children of its root, and the children of those.
struct clsTreeChange {
    struct clsPart {
        std::uint32_t oldPlace; ///< of the part among the children of the root
        std::uint32_t newPlace;
        clsSequenceChange children;
    };
    clsSequenceChange root;
    std::vector<clsPart> parts;

    bool isEmpty() const { return root.isEmpty() && parts.empty(); }
    /// True when only texts are others.
    bool movesNothing() const;
    size_t bytes() const;
};

enum class clsTreeDirection { Back, Forth };

/// The units that stand in the tree and go, and those that come, for a direction.
struct clsSequenceTurn {
    const std::vector<clsSequenceChange::clsUnit> &going;
    const std::vector<clsSequenceChange::clsUnit> &coming;

    clsSequenceTurn(const clsSequenceChange &change, clsTreeDirection direction)
        : going(direction == clsTreeDirection::Forth ? change.removed : change.added)
        , coming(direction == clsTreeDirection::Forth ? change.added : change.removed)
    { }
};
