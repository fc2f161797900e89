#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <functional>

class clsConsoleUserInterface;
class clsZR3Form;

/// Reads the claim of a path; what keeps it from that is told.
using clsClaimReader = std::function<clsExitStatus(clsZR3Form &form, const QString &path)>;

/// Looks through the claims of a command line and prints what it has found.
clsExitStatus mdCheckFull(clsConsoleUserInterface &console, const clsToolCommand &command, const clsClaimReader &read);

/// Prints how a figure of a claim comes about.
clsExitStatus mdWhyFigure(const clsZR3Form &form, const clsToolCommand &command);
