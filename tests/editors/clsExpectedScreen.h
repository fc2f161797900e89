#pragma once

#include <vector>

// What a screen holds, written down a second time and by hand, so that a slip in one of the tables shows.

struct clsExpectedField {
    const char *control;
    const char *caption; ///< of the control; of its question where it is an answer; read out only where none is shown
    const char *answer; ///< the caption of an answer, else nothing
    /// 't' text, 'd' date, 'm' decimal, 'i' integer, 'h' time, 'x' tick, 'l' list, 'g' grid, 'b' button, 'o' any other
    char kind;
    int allowance = 0;
    bool multiLine = false;
    bool spellCheck = false;
    const char *frame = "bxGeneral";
    bool overRun = false;
    const char *element = nullptr; ///< in which it is stored, where that isn't the control's name less its prefix
    bool dateTick = false;
    bool replacements = true;
    const char *second = "1"; ///< what the second entry of a list is stored as
};

struct clsExpectedFrame {
    const char *name;
    const char *caption; ///< empty for one that has none
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
