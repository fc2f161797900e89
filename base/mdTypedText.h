#pragma once

#include <QString>

#include <optional>

// How the typed boxes read their text: the canonical form of the value, or nothing if the text doesn't fit. The
// functions are idempotent and raise no errors: a value out of range for later calculations doesn't fit either.

/// A date as "dd/mm/yy"; empty text stays empty. Points, blanks and hyphens separate the parts as well as slashes. A
/// date without a year gets `lastYear`, the year typed last and not the present one; 0 means none yet. The years of the
/// no-date value don't count as typed.
std::optional<QString> TypedDate(const QString &text, int &lastYear);

/// An amount or a rate with two decimals and no grouping; pound and per-cent signs are dropped, and empty text is 0.00.
/// The number ends at its first comma, so £1,200 becomes 1.00: amounts are typed without separators.
std::optional<QString> TypedDecimal(const QString &text);

/// A number without its blanks, 0 for empty text. It is neither rounded nor reformatted: 1.5 stays 1.5. A number beyond
/// 32 bits, which a record can't store, doesn't fit.
std::optional<QString> TypedInteger(const QString &text);

/// A duration as hours, a colon and minutes, from "1:30", from decimal hours such as "1.5", or from minutes.
std::optional<QString> TypedTime(const QString &text);

/// The duration a minute later; error 9 if the text has no colon, error 6 beyond 32 bits of minutes.
QString TimeAfterOneMinute(const QString &timeText);
