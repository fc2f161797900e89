#pragma once

#include <QColor>
#include <QString>

#include <optional>

/// What the count beside a text box shows for a text of some length: a number, its colour, and the same in words for
/// whoever can't tell colours apart or sees neither.
struct clsCharacterCount {
    /// `allowance` is the number of characters that the printed box holds; `overRun` says that the rest of a longer
    /// text goes to a continuation sheet.
    clsCharacterCount(int allowance, qsizetype length, bool overRun);

    QString text;
    QString words;
    /// The colour to take on; nothing where the count keeps the one that it has.
    std::optional<QColor> colour;
};
