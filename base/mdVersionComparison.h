#pragma once

#include <QString>

/// Compares the version that wrote a claim with the running program's: 1 identical text, 2 the file is newer, 0 it is
/// older or equal in other digits (1.01.0140 against 1.1.140). The first three fields count, as numbers; text with
/// fewer raises error 9, unless the two texts are identical.
int CompareVersions(const QString &fileVersion, const QString &programVersion);
