#pragma once

#include <QStringList>

// The words that the user has added to the dictionary: a text file in UTF-8, one word on each line, which the user may
// edit.

/// The words of a file, without empty lines; none if the file is missing or unreadable.
QStringList UserWords(const QString &path);

/// Appends a word unless it is there. Writes the file atomically; reports a failure, and doesn't touch a file that
/// can't be read.
void AddUserWord(const QString &path, const QString &word);
