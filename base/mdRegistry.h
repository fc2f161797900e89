#pragma once

#include <QString>

// The settings that must be known before the preferences can be found, each a text under a full name such as
// HKEY_LOCAL_MACHINE\SOFTWARE\Velmor\ZR3\Database Path. They lie in Velmor/ZR3.conf in the user's configuration folder;
// what is not there is read from the machine-wide ones, where an administrator can put it for all users. A failure
// shows the box "Registry Key", and the operation is given up.

/// The text under a name, or an empty one when there is none.
QString ReadRegKey(const QString &name);

/// The same without box and log: a failure reads as empty.
QString ReadRegKeyQuietly(const QString &name);

/// Whether it is certain that there is no text under a name: every store could be read, and none has one.
bool RegKeyIsMissing(const QString &name);

/// Stores a text for this user.
void WriteRegKey(const QString &name, const QString &value);

/// Makes the name read as empty. A machine-wide value is left to its administrator and hidden by an empty one of the
/// user's.
void DeleteRegKey(const QString &name);
