#pragma once

#include <QString>

// The settings needed before the preferences can be found, each a text under a full name such as
// HKEY_LOCAL_MACHINE\SOFTWARE\Velmor\ZR3\Database Path. Stored in Velmor/ZR3.conf in the user's configuration folder; a
// setting not found there is read from the machine-wide folders, where an administrator can set it for all users. A
// failure shows the box "Registry Key" and the operation is abandoned.

/// The text under a name; empty if there is none.
QString ReadRegKey(const QString &name);

/// The same without message and log; empty on failure.
QString ReadRegKeyQuietly(const QString &name);

/// True if a name certainly has no text: all stores were readable and none contains it.
bool RegKeyIsMissing(const QString &name);

/// Stores a text for this user.
void WriteRegKey(const QString &name, const QString &value);

/// Makes the name read as empty. A machine-wide value is kept and hidden by an empty one of the user's.
void DeleteRegKey(const QString &name);
