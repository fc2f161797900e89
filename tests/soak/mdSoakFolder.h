#pragma once

#include <QStringList>

class clsDice;

/// Makes the folder in which the soak lives: the program's own with its preferences, one to export to, one for backups,
/// and claims to open. The result is their paths. Beside the samples these are random claims and a broken one, unless
/// only the samples are asked for.
QStringList mdMakeSoakFolder(const QString &folder, clsDice &dice, bool samplesOnly);

/// Takes away what only grows, such as the log of the day.
void mdTidySoakFolder(const QString &folder);
