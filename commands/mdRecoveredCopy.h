#pragma once

#include "commands/clsRecoveredCopy.h"

/// Writes a claim whose work would be lost into the folder "Recovered" of the database folder where that is this user's
/// own, or, where it isn't or can't be written, into the user's own folder for the state of programs. It bears the
/// claim's file name and the time; only its owner can read it, and it is on the disk when this returns. For the last
/// moment of the program: it shows nothing, asks nothing, logs nothing and never fails.
/// A claim that has not changed since its last copy gets no second one.
clsRecoveredCopy WriteRecoveredCopy() noexcept;
