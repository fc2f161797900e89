#pragma once

#include <QString>

/// Reports long work: `value` of `maximum`, or with `inverted` what is still left of it.
/// Long runs are thinned (every 600th step only), since each report repaints a bar.
void mdSetProgress(int value, int maximum, const QString &text, bool inverted = false);

/// Empties the bar.
void mdClearProgress();
