#pragma once

#include <vector>

class oFieldLabel;
class oScreenBar;
class oScreenFrame;
struct clsScreenField;

/// Gives everything on a screen that Alt reaches a letter of its own: first what has the same letter on all screens,
/// then the bar, the buttons among the fields, and the captions in the order of the table; a caption whose letters are
/// all taken gets a digit instead. The answers to a question have none: the question's letter leads to the first of
/// them. Where the first field of a frame has no caption that could lead to it, that of the frame does.
void mdGiveLetters(oScreenBar &bar, const std::vector<clsScreenField> &fields, const std::vector<oFieldLabel *> &labels,
    const std::vector<oScreenFrame *> &frames);
