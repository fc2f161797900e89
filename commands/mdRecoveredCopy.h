#pragma once

#include "commands/clsRecoveredCopy.h"

/// Writes a claim whose work would be lost to the folder "Recovered" in the database folder, if that folder belongs to
/// this user, otherwise or on failure to the one in the user's state folder. The name is the claim's file name with the
/// time. Only its owner can read the copy, and it is on the disk on return. Safe to call while the program is ending:
/// shows, asks and logs nothing and never fails. A claim that hasn't changed since its last copy is not copied again.
clsRecoveredCopy WriteRecoveredCopy() noexcept;
