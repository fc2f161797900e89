#pragma once

#include <QString>

#include <optional>

/// What a box says of a text that it took for something other than what was probably meant.
struct clsReadAs {
    QString words; ///< one sentence, such as "Typed 1,250, read as 1.00: amounts take no comma"
    QString better = {}; ///< the text that was probably meant, in the box's own form; empty where there is none
    QString shortWords = {}; ///< the same without what was typed; empty where the words don't say it
};

/// For an amount or a rate: `typed` as it was entered, `read` as TypedDecimal gives it. Nothing where the value stands.
std::optional<clsReadAs> DecimalReadAs(const QString &typed, const QString &read);

/// The same for a date, with `read` as TypedDate gives it.
std::optional<clsReadAs> DateReadAs(const QString &typed, const QString &read);
