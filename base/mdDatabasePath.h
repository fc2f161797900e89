#pragma once

#include <QString>

/// The database folder, without a slash at its end. Where it does not exist, the box "Folder Error" shows and the
/// program ends (clsProgramEnd), also in the middle of its work: without the folder there are no preferences.
/// The path is stored again at each call, which fills in the default at the first start and cleans a slash away.
QString GetDatabasePath();

/// The database folder as it is stored or by default, whether or not it exists. Nothing is shown, logged or stored: for
/// the moments at which the program can't talk to anybody.
QString StoredDatabasePath();

/// Whether it is certain that no database folder is stored, neither by the user nor for all users of the machine.
bool DatabasePathIsMissing();

/// Whether the folder that is stored is the default one, whatever way of writing it.
bool DatabasePathIsDefault();

/// Stores the database folder.
void SetDatabasePath(const QString &path);

/// Asks whether to go back to the default folder, and on Yes forgets the stored one.
void ResetDatabasePath();

/// The folder "Databases" beside the program.
QString DefaultDatabasePath();

/// Lets the user choose the database folder. Whether there are preferences in it is not tested.
void SelectDatabasePath();
