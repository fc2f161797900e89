#pragma once

#include <QString>

/// A rate or amount from its text to the nearest double, with all the decimals that it has; a text that is no number is
/// the type error. Steps that multiply before they round take their factors so.
double mdStrictDouble(const QString &text);
