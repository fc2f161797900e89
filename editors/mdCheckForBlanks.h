#pragma once

#include <QStringList>

/// Checks the texts of required fields in order. Shows one message for the first empty one and returns false; a text of
/// blanks counts as filled.
bool mdCheckForBlanks(const QStringList &texts);
