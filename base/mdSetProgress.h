#pragma once

#include <QString>

/// Reports long work: `value` of `maximum`, or with `inverted` the part still to do. Only every 600th step is reported
/// in long runs, since each report repaints a bar.
void mdSetProgress(int value, int maximum, const QString &text, bool inverted = false);

/// Empties the bar.
void mdClearProgress();
