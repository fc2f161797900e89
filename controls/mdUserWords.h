#pragma once

#include <QStringList>

// The words that the user has added to the dictionary: a text file in UTF-8, one word on each line, which he may edit.

/// The words of a file, without empty lines; none where there is no such file or it can't be read.
QStringList UserWords(const QString &path);

/// Appends a word unless it is there. The file is the old one or the whole new one at all times; a failure is told to
/// the user, and a file that can't be read isn't touched.
void AddUserWord(const QString &path, const QString &word);
