#pragma once

#include <QString>

/// The folder for the program's data of this user, beside the claims and the database folder: Velmor in the folder that
/// XDG_STATE_HOME names.
QString StateFolder();

/// Creates it if missing, and closes it to others. False if it then doesn't exist or leads over another user's link:
/// nothing may be written to it.
bool MakeStateFolder();
