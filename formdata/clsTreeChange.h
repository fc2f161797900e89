#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The difference between two states of the children of one element, applicable in both directions: the children
/// removed and added, with their positions, and the changed texts. A text belongs to a child or to one of its fields.
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
        std::uint32_t field; ///< its position in the child
        std::string_view oldText;
        std::string_view newText;
    };

    std::vector<clsUnit> removed; ///< by their positions before the change
    std::vector<clsUnit> added; ///< by their positions after the change

    void addText(const clsText &text);
    /// Iterates over the texts in the order of their positions; `at` starts at 0; false at the end.
    bool nextText(size_t &at, clsText &text) const;

    bool isEmpty() const { return removed.empty() && added.empty() && m_texts.empty(); }
    bool movesNothing() const { return removed.empty() && added.empty(); }
    size_t bytes() const;

private:
    std::string m_texts; ///< renumbering a list changes thousands
};

/// The difference between two states of a claim: the children of its root, and their children.
struct clsTreeChange {
    struct clsPart {
        std::uint32_t oldPlace; ///< of the part among the children of the root
        std::uint32_t newPlace;
        clsSequenceChange children;
    };
    clsSequenceChange root;
    std::vector<clsPart> parts;

    bool isEmpty() const { return root.isEmpty() && parts.empty(); }
    /// True if only texts have changed.
    bool movesNothing() const;
    size_t bytes() const;
};

enum class clsTreeDirection { Back, Forth };

/// The units to remove from the tree and those to add, for one direction.
struct clsSequenceTurn {
    const std::vector<clsSequenceChange::clsUnit> &going;
    const std::vector<clsSequenceChange::clsUnit> &coming;

    clsSequenceTurn(const clsSequenceChange &change, clsTreeDirection direction)
        : going(direction == clsTreeDirection::Forth ? change.removed : change.added)
        , coming(direction == clsTreeDirection::Forth ? change.added : change.removed)
    { }
};
