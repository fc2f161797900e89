#pragma once

#include <QString>

/// The side file of a guarded overwrite: the path followed by "a". If the name is too long for another letter, its end
/// is replaced by a mark unique to this file.
QString mdSideFile(const QString &path);
