#pragma once

#include <QString>

/// The database folder, without a trailing slash. If it doesn't exist, shows the box "Folder Error" and ends the
/// program (clsProgramEnd), even in the middle of its work: without the folder there are no preferences. Each call
/// stores the path again, which fills in the default at the first start and removes a trailing slash.
QString GetDatabasePath();

/// The stored or default database folder, whether or not it exists. Shows, logs and stores nothing, for use when no
/// message can be shown.
QString StoredDatabasePath();

/// Whether it is certain that no database folder is stored, neither for the user nor for the machine.
bool DatabasePathIsMissing();

/// Whether the stored folder is the default one, however it is written.
bool DatabasePathIsDefault();

/// Stores the database folder.
void SetDatabasePath(const QString &path);

/// Asks whether to go back to the default folder; on Yes deletes the stored one.
void ResetDatabasePath();

/// The folder "Databases" beside the program.
QString DefaultDatabasePath();

/// Lets the user choose the database folder. Doesn't check that it contains preferences.
void SelectDatabasePath();
