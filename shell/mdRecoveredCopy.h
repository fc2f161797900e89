#pragma once

#include <QString>

/// Writes a claim whose work would be lost into the folder "Recovered" of the database folder, or, where that can't be
/// written, into the user's own folder for the state of programs. It bears the claim's file name and the time; only its
/// owner can read it, and it is on the disk when this returns. For the last moment of the program: it shows nothing,
/// asks nothing, logs nothing and never fails.
/// A claim that has not changed since its last copy gets no second one.
/// Returns the path of the copy, empty where there was nothing to write or no place to write it to.
QString WriteRecoveredCopy() noexcept;
