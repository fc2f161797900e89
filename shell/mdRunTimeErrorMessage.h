#pragma once

#include "shell/clsRunTimeError.h"

/// The text of the box that an error shows when nothing has caught it: its number, its description, and what became of
/// the work that was not saved. `recoveredCopy` is the path of the copy, empty where none was written.
QString mdRunTimeErrorMessage(const clsRunTimeError &error, const QString &recoveredCopy);
