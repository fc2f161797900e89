#pragma once

#include <QString>
#include <QStringList>

/// Breaks a text into lines of at most `width` characters at its single blanks, for the sheets with a fixed number of
/// lines. The length is checked before adding a word, so only a single long word exceeds it; if that is the first word,
/// the first line is empty. An empty text returns one empty line.
QStringList mdSplitLineIntoCollection(const QString &text, int width);

/// Cuts a text into pieces for continuation sheets. The length is checked after adding a word: a piece exceeds the cut
/// length by up to one word, and if that happens at the last word, an empty piece and so a further sheet follows.
/// Required behaviour; do not fix.
QStringList mdCutIntoPieces(const QString &text, int cutLength);
