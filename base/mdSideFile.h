#pragma once

#include <QString>

/// The side file of a guarded overwrite: the path followed by "a". Where the name is so long that there is no room for
/// one more letter, its end is replaced by a mark that no other file's side file has.
QString mdSideFile(const QString &path);
