#pragma once

#include "commands/clsRecoveredCopy.h"

#include <QString>

/// Why work would be lost if the program ended now: the claim has changes, or it counts as saved but its last save
/// failed or its file has changed since. None if a file in the claim's folder has the same content, and while a claim
/// is being opened. Shows nothing and never fails.
clsLossCause FormLossCause() noexcept;

/// Whether a text of the claim has work that the clean text lacks. A changed path alone is not work: a copy opened from
/// another folder has one.
bool HoldsUnsavedWork(const QString &text);
