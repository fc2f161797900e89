#pragma once

#include <QString>
#include <QStringList>

/// A text cut into lines of at most `width` characters at its single blanks, for the sheets that hold a fixed number of
/// lines. The test comes before the word, so that only a single long word is longer; when that is the first, the first
/// line is empty. An empty text gives one empty line.
QStringList mdSplitLineIntoCollection(const QString &text, int width);

/// A text cut into the pieces that fill continuation sheets. Here the test comes after the word: a piece overruns the
/// cut length by up to one word, and a word that tips the last piece leaves an empty one behind it, and so a further
/// sheet. Both are meant.
QStringList mdCutIntoPieces(const QString &text, int cutLength);
