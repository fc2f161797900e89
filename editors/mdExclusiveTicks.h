#pragma once

#include <QString>

#include <vector>

class oCheckBox;

/// The common part of the names of a Yes/No pair, such as "chkLegalHelp"; empty for any other control.
QString mdPairOf(const QString &control);

/// Makes boxes exclusive: ticking one clears the others; all may be unticked. Loading ticks a box like the user does:
/// if a file has several ticked, the last one loaded stays ticked, and saving the screen removes the others from the
/// claim. Required behaviour; do not fix.
void mdMakeExclusive(const std::vector<oCheckBox *> &boxes);
