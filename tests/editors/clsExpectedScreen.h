#pragma once

#include <vector>

// The expected content of a screen, written by hand, so that a mistake in one of the tables is found.

struct clsExpectedField {
    const char *control;
    const char *caption; ///< of the control or of the answer's question; if unlabelled, the screen reader name
    const char *answer; ///< the caption of an answer, else null
    /// 't' text, 'd' date, 'm' decimal, 'i' integer, 'h' time, 'x' tick, 'l' list, 'g' grid, 'b' button, 'o' any other
    char kind;
    int allowance = 0;
    bool multiLine = false;
    bool spellCheck = false;
    const char *frame = "bxGeneral";
    bool overRun = false;
    const char *element = nullptr; ///< where it is stored, if not named as the control without its prefix
    bool dateTick = false;
    bool replacements = true;
    const char *second = "1"; ///< how the second entry of a list is stored
};

struct clsExpectedFrame {
    const char *name;
    const char *caption; ///< empty if it has none
};

struct clsExpectedScreen {
    const char *section; ///< empty for the editor of an item
    const char *name;
    const char *header;
    const char *subCaption;
    const char *element; ///< of the record in the claim; empty for the claim itself
    std::vector<clsExpectedField> fields;
    std::vector<clsExpectedFrame> frames; ///< in the order of the screen
    int iconGroup = 12;
};
