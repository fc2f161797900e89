#pragma once

#include "commands/clsRecoveredCopy.h"

#include <QString>

/// Why the end of the program would lose work: the claim has changes, or it counts as saved and its last save did not
/// get through, or its file is no longer what was saved. None where a file of its folder has the very same content, and
/// while a claim is still being opened. Shows nothing and never fails.
clsLossCause FormLossCause() noexcept;

/// Whether the claim's text, as given, has work in it that the clean one lacks. The path that a claim holds is none, as
/// of a copy that was opened where it lies.
bool HoldsUnsavedWork(const QString &text);
