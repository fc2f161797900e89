#pragma once

#include "base/clsRunTimeError.h"
#include "commands/clsRecoveredCopy.h"

/// What became of the work that was not saved, as the user is told; empty where there was nothing to write.
QString mdRecoveredCopyMessage(const clsRecoveredCopy &copy);

/// The text of the box that an error shows when nothing has caught it: its number, its description, its cause where
/// that is known, and what became of the work that was not saved.
QString mdRunTimeErrorMessage(const clsRunTimeError &error, const clsRecoveredCopy &copy);
