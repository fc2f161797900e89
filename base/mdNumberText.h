#pragma once

#include <QStringView>

#include <cstdint>

// Numbers and booleans as texts, in any locale: the point is the decimal sign, the comma groups.

/// Lenient: the longest number at the start of the text, in pounds, hours or any other unit. It may have a leading sign
/// and one point; blanks, tabs and line ends before and within it are skipped; an exponent, a comma or any other
/// character ends it. 0 if there is none. Never fails: a number beyond the range of doubles is infinity.
double TextValue(QStringView text);

/// The nearest 32-bit integer, half to even; error 6 if out of range.
int LongFromDouble(double value);

/// Lenient: `TextValue` to the nearest 32-bit integer; 0 for an empty text, error 6 if out of range.
int LongFromText(QStringView text);

/// Strict: a number in the format of `FixedFromText`, to the nearest 32-bit integer, half to even; error 13 for other
/// text, error 6 if out of range.
int LongFromStrictText(QStringView text);

/// Strict: a number as a count of units of its decimal `places`, further decimals rounded half to even. Format: digits,
/// commas (their positions are not checked), one point, a leading sign, blanks around; any other text is error 13. A
/// result above `largest` or below `-largest - 1` is error 6.
std::int64_t FixedFromText(QStringView text, int places, std::int64_t largest);

/// Strict, with all decimals: the nearest double to a number in the format of `FixedFromText`; error 13 for other text.
/// For factors that are multiplied before rounding.
double DoubleFromStrictText(QStringView text);

/// "True" and "False" in any case, or a number in the format of `FixedFromText`, where zero is False; error 13 for any
/// other text, error 6 for a number that is too large.
bool BooleanFromText(QStringView text);

/// Whether the text is a number in the format of `FixedFromText`, of any size.
bool IsNumeric(QStringView text);
