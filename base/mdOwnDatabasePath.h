#pragma once

#include <QString>

/// The database folder that a user is given: Velmor/ZR3/Databases in the folder for the user's data.
QString OwnDatabasePath();

/// Gives a user for whom no database folder is stored one of their own, with fresh preferences, and stores it; so too
/// where the stored one is the default, which the user may not write. What is there already is never changed otherwise:
/// neither another stored folder, be it the user's or the machine's and whether or not it can be used, nor preferences
/// that lie in the user's folder. For the program's launcher: the program itself takes the folder beside it, which is
/// right where that may be written. Says nothing: what fails here the program tells.
void GiveOwnDatabasePath();
