#pragma once

#include <QStringList>

class clsDice;

/// Creates the folder for the soak: the program's own with its preferences, one for exports, one for backups, and
/// claims to open. Returns the claims' paths: the samples and, unless `samplesOnly`, random claims and a broken one.
QStringList mdMakeSoakFolder(const QString &folder, clsDice &dice, bool samplesOnly);

/// Deletes what only grows, such as the day's log.
void mdTidySoakFolder(const QString &folder);
