#pragma once

#include <QString>

#include <optional>

// What the typed boxes make of what was typed: the one form in which a value leaves its box, or nothing where the text
// doesn't fit. Each result is a text that the same function gives back unchanged. None of them raises an error: a value
// that is out of the range of whoever computes with it doesn't fit either.

/// A date as "dd/mm/yy", an empty text as it is. Points, blanks and hyphens part it as well as slashes. A date typed
/// without its year falls into `lastYear`, the year that was typed last and not the present one; 0 is no year yet. The
/// years of the no-date value don't count as typed.
std::optional<QString> TypedDate(const QString &text, int &lastYear);

/// An amount or a rate with two decimals and without grouping; pound and per-cent signs are dropped, and an empty text
/// is 0.00. A number is read up to its first comma, so that £1,200 becomes 1.00: amounts are typed without separators.
std::optional<QString> TypedDecimal(const QString &text);

/// A number without its blanks, 0 for an empty text. It is neither rounded nor written anew: 1.5 stands. One that a
/// record could not store, beyond 32 bits, doesn't fit.
std::optional<QString> TypedInteger(const QString &text);

/// A duration as hours, a colon and minutes, from "1:30", from hours with decimals such as "1.5", or from minutes.
std::optional<QString> TypedTime(const QString &text);

/// The duration a minute later; error 9 where the text has no colon, error 6 beyond 32 bits of minutes.
QString TimeAfterOneMinute(const QString &timeText);
