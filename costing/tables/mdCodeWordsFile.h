#pragma once

#include "costing/tables/clsCodeWords.h"

// The firm's words for the codes: "Codes.csv" in the database folder, shared by all its users.

/// The words in the file; none if there is no file. A file that is not a table is set aside, and the user is told in
/// one line.
clsCodeWords mdReadCodeWords();

/// Writes words to the file, keeping the others that another user may have changed meanwhile. False, after a message,
/// on failure.
bool mdWriteCodeWords(const QHash<QString, QString> &words);
