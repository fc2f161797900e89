#pragma once

#include <QStringList>

class clsDice;

/// Makes the folder in which the soak lives: the program's own with its preferences, one to export to, one for backups,
/// and claims to open. The result is their paths.
QStringList mdMakeSoakFolder(const QString &folder, clsDice &dice);

/// Takes away what only grows, such as the log of the day.
void mdTidySoakFolder(const QString &folder);
