#pragma once

#include <QDate>
#include <QLatin1String>
#include <QString>
#include <QStringView>

#include <optional>

// Dates as texts, British in any locale: the day comes first.

/// The text for "no date" in a claim. A date box shows it as empty; an item without a date stores it.
inline constexpr QLatin1String NoDate("31/12/29");

/// A year from its number of digits: two-digit years up to 29 are in this century, later ones in the last.
int FullYear(int year, qsizetype digits);

/// Reads day/month/year, or year/month/day if a four-digit year comes first. A month is a number or at least three
/// letters of its English name. Nothing for a day that doesn't exist. Day and month are never swapped to make a date
/// valid: 02/13/24 may be a typing error as well as an American date.
std::optional<QDate> DateFromText(QStringView text);

/// Whether `DateFromText` finds a date.
bool IsDate(QStringView text);

/// The date as it is stored and shown: "dd/mm/yy".
QString DateText(QDate date);
