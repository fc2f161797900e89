#pragma once

#include <QStringList>

/// Looks at the texts of required fields in their order. At the first that is empty it shows one message and returns
/// False; blanks alone count as filled.
bool mdCheckForBlanks(const QStringList &texts);
