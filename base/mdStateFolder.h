#pragma once

#include <QString>

/// The folder for what the program keeps for this user alone, beside the claims and the database folder: Velmor in the
/// folder that XDG_STATE_HOME names.
QString StateFolder();

/// Makes it where it is missing, and closes it to others. False where it isn't there then, or a link that another user
/// has put there leads to it: nothing may be written to it then.
bool MakeStateFolder();
