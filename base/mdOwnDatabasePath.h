#pragma once

#include <QString>

/// The user's default database folder: Velmor/ZR3/Databases in the folder for the user's data.
QString OwnDatabasePath();

/// For a user without a stored database folder, creates a private one with fresh preferences and stores it; also if the
/// stored folder is the default, which the user can't write. Existing settings are never changed otherwise: neither
/// another stored folder (the user's or the machine's, usable or not) nor preferences in the user's folder. Only the
/// launcher calls this: the program without it uses the folder beside it, which works if that is writable. Shows
/// nothing: the program reports the failures.
void GiveOwnDatabasePath();
