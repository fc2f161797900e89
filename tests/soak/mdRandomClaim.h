#pragma once

#include <QString>

class clsDice;

/// Writes a claim to a file, with a random value in every field of every screen and this many items in its longest
/// list. It uses the tables of the screens, so that new fields are included automatically.
void mdWriteRandomClaim(clsDice &dice, int items, const QString &path);
