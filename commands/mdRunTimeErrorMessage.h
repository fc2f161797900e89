#pragma once

#include "base/clsRunTimeError.h"
#include "commands/clsRecoveredCopy.h"

/// Tells the user what happened to the unsaved work; empty if there was nothing to write.
QString mdRecoveredCopyMessage(const clsRecoveredCopy &copy);

/// The text of the message for an uncaught error: its number, its description, its cause if known, and what happened to
/// the unsaved work.
QString mdRunTimeErrorMessage(const clsRunTimeError &error, const clsRecoveredCopy &copy);
