#pragma once

#include <QStringList>

/// What stands for a path of the command line: the path itself, or, where it is a folder, all claims below it by the
/// order of their names. What is hidden, recovered copies and what lies behind links to folders are left out.
QStringList mdClaimPaths(const QString &path);
