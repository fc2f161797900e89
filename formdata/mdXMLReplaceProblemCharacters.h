#pragma once

#include <QString>

/// Prepares a text for the tree: the acute accent (code 180), which keyboards produce instead of an apostrophe, becomes
/// an apostrophe, and a tab becomes a blank. Applied only on writing, without a message.
QString ReplaceProblemCharacters(QString text);
