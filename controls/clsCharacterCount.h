#pragma once

#include <QColor>
#include <QString>

#include <optional>

/// The count beside a text box for a text of some length: a number, its colour, and the same in words for users who
/// can't see colours or the screen.
struct clsCharacterCount {
    /// `allowance` is the number of characters that the printed box holds; with `overRun` the rest of a longer text is
    /// printed on a continuation sheet.
    clsCharacterCount(int allowance, qsizetype length, bool overRun);

    QString text;
    QString words;
    /// The new colour; nothing to keep the present one.
    std::optional<QColor> colour;
};
