#pragma once

#include <QString>

/// A text as it may enter the tree: the acute accent (code 180), which keyboards give where an apostrophe is meant,
/// becomes an apostrophe, and a tab becomes a blank. Applied on the way in only, and without a word to the user.
QString ReplaceProblemCharacters(QString text);
