#pragma once

#include <QString>

#include <vector>

class oCheckBox;

/// The name that the two boxes of a Yes/No pair have in common, such as "chkLegalHelp"; empty for any other control.
QString mdPairOf(const QString &control);

/// Lets a box that becomes ticked clear the others. Unticking clears nothing, so that all can stand unticked. Loading a
/// box ticks it like a user: where a file has several ticked, the one loaded last wins, and saving the screen drops the
/// others from the claim. That is meant: a question has one answer.
void mdMakeExclusive(const std::vector<oCheckBox *> &boxes);
