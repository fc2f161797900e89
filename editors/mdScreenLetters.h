#pragma once

#include <vector>

class oFieldLabel;
class oScreenBar;
class oScreenFrame;
struct clsScreenField;

/// Assigns Alt letters on a screen: first those that are the same on all screens, then to the bar, the buttons among
/// the fields, and the captions in the order of the table. A caption whose letters are all taken gets a digit. Answers
/// to a question have no letter: the question's letter leads to the first of them. If the first field of a frame has no
/// caption, the frame's caption leads to it.
void mdGiveLetters(oScreenBar &bar, const std::vector<clsScreenField> &fields, const std::vector<oFieldLabel *> &labels,
    const std::vector<oScreenFrame *> &frames);
