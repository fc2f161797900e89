#pragma once

#include <QDate>
#include <QLatin1String>
#include <QString>
#include <QStringView>

#include <optional>

// Dates as texts, British whatever the locale of the machine: the day comes first.

/// The text that stands for no date in a claim. A date box shows it as empty; an item without a date stores it.
inline constexpr QLatin1String NoDate("31/12/29");

/// A year as it was written with so many digits: one of two digits up to 29 is of this century, later ones of the last.
int FullYear(int year, qsizetype digits);

/// Reads day/month/year, and year/month/day where the year is written first with its four digits. A month is a number
/// or the start of its English name, of three letters at least. Nothing for a day that no calendar has. The parts are
/// never swapped to make a date of what is none: 02/13/24 may be a slip of the finger as well as a foreign habit.
std::optional<QDate> DateFromText(QStringView text);

/// Whether `DateFromText` finds a date.
bool IsDate(QStringView text);

/// The date as it is stored and shown: "dd/mm/yy".
QString DateText(QDate date);
