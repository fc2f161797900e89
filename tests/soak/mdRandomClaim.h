#pragma once

#include <QString>

class clsDice;

/// Writes a claim to a file whose every field of every screen was thrown by the dice, with so many items in its longest
/// list. It makes it from the tables of the screens, so that a new field is in it without another line here.
void mdWriteRandomClaim(clsDice &dice, int items, const QString &path);
