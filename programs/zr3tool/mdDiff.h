#pragma once

#include "programs/zr3tool/mdCheckFull.h"

/// Prints what differs between two claims, or between the claims of two folders.
clsExitStatus mdDiff(clsConsoleUserInterface &console, const clsToolCommand &command, const clsClaimReader &read);
