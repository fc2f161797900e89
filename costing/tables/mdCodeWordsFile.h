#pragma once

#include "costing/tables/clsCodeWords.h"

// The firm's words for the codes, "Codes.csv" in the database folder, which all its users share.

/// The words as they now stand; none where there is no file. A file that is no table is set aside, and the user is told
/// in one line.
clsCodeWords mdReadCodeWords();

/// Puts words into the file as it now stands, where another user may have changed others since. False, after a
/// message, where it can't be written.
bool mdWriteCodeWords(const QHash<QString, QString> &words);
