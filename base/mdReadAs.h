#pragma once

#include <QString>

#include <optional>

/// The note beside a box that read a text as something other than what was probably intended.
struct clsReadAs {
    QString words; ///< one sentence, such as "Typed 1,250, read as 1.00: amounts take no comma"
    QString better = {}; ///< the text that was probably intended, in the box's format; empty if unknown
    QString shortWords = {}; ///< the same without what was typed; empty if `words` doesn't contain it
};

/// For an amount or a rate: `typed` as entered, `read` from TypedDecimal. Nothing if the value was read as typed.
std::optional<clsReadAs> DecimalReadAs(const QString &typed, const QString &read);

/// The same for a date, with `read` from TypedDate.
std::optional<clsReadAs> DateReadAs(const QString &typed, const QString &read);
