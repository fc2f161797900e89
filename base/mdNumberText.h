#pragma once

#include <QStringView>

#include <cstdint>

// Numbers and booleans as texts, whatever the locale of the machine: the point is the decimal sign, the comma groups.

/// Lenient: the longest number at the start of the text, in pounds, hours or whatever it counts. A sign in front and
/// one point belong to it; blanks, tabs and line ends before and within are skipped; an exponent, a comma or anything
/// else ends it. 0 where there is none. Never fails: a number beyond all doubles is infinity.
double TextValue(QStringView text);

/// The nearest 32-bit integer, half to even; error 6 where there is none.
int LongFromDouble(double value);

/// Lenient: `TextValue` to the nearest 32-bit integer; 0 for an empty text, error 6 for what is out of range.
int LongFromText(QStringView text);

/// Strict: a number as `FixedFromText` takes it, to the nearest 32-bit integer, half to even; error 13 for a text that
/// is none, error 6 for what is out of range.
int LongFromStrictText(QStringView text);

/// Strict: a number as a count of units of its decimal `places`, half to even beyond them. It is written with digits,
/// commas (their places are not checked), one point, a sign in front and blanks around; any other text is error 13.
/// What lies above `largest` or below `-largest - 1` is error 6.
std::int64_t FixedFromText(QStringView text, int places, std::int64_t largest);

/// Strict, with all the decimals that there are: the nearest double to a number as `FixedFromText` takes it; error 13
/// for a text that is none. Steps that multiply before they round take their factors so.
double DoubleFromStrictText(QStringView text);

/// "True" and "False" in any case, or a number as `FixedFromText` takes it, where zero is False; error 13 for any other
/// text, error 6 for a number that is too large.
bool BooleanFromText(QStringView text);

/// Whether the text is a number as `FixedFromText` takes it, of whatever size.
bool IsNumeric(QStringView text);
