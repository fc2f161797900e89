#pragma once

#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;

/// Prints the differences between two claims, or between the claims of two folders.
clsExitStatus mdDiff(clsConsoleUserInterface &console, const clsToolCommand &command);
