#pragma once

#include "wordexport/document/clsWordLooks.h"
#include "wordexport/document/clsWordTyped.h"

#include <QString>

#include <pugixml.hpp>

#include <vector>

/// A typed text that is not printed at its own size, or not in the room that its row has.
struct clsFittedText {
    enum State {
        Smaller, ///< it fits its row in a smaller size
        RunsOn, ///< its row grows, and the sheet may run on to another page
        Cut, ///< neither helps
    };

    QString placeholder; ///< empty for text typed into a grid
    int row; ///< of the grid, from 1; 0 for a placeholder
    int column;
    int halfPoints; ///< the size that it has by the template
    int printedHalfPoints;
    int lines; ///< that it takes at its own size
    int printedLines;
    State state;
};

/// Makes room for what was typed into the table rows of exact height, which print what fits and cut off the rest. Where
/// the lines of a cell don't fit, its typed text becomes smaller by half points, down to six points; where that isn't
/// enough, the row may grow. It also becomes smaller where that keeps a word or an amount in one piece. What fits is
/// left as it is. Returns what was changed, in the order of the document.
std::vector<clsFittedText> mdFitTypedText(const pugi::xml_node &body, const clsWordLooks &looks, clsWordTyped &typed);
