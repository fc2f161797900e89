#pragma once

#include "wordexport/document/clsWordLooks.h"
#include "wordexport/document/clsWordTyped.h"

#include <QString>

#include <pugixml.hpp>

#include <vector>

/// A typed text that is not printed at its own size, or not within its row.
struct clsFittedText {
    enum State {
        Smaller, ///< fits its row at a smaller size
        RunsOn, ///< its row grows, and the sheet may continue on another page
        Cut, ///< neither is enough
    };

    QString placeholder; ///< empty for text typed into a grid
    int row; ///< of the grid, from 1; 0 for a placeholder
    int column;
    int halfPoints; ///< its size in the template
    int printedHalfPoints;
    int lines; ///< at its own size
    int printedLines;
    State state;
};

/// Fits typed text into table rows of exact height, in which the rest would be cut off when printed. If the lines of a
/// cell don't fit, its typed text is reduced by half points, down to six points; if that isn't enough, the row may
/// grow. Text is also reduced if that keeps a word or an amount in one piece. Text that fits is unchanged. Returns the
/// changes, in document order.
std::vector<clsFittedText> mdFitTypedText(const pugi::xml_node &body, const clsWordLooks &looks, clsWordTyped &typed);
