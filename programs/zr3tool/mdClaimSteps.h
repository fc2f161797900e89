#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <functional>

class clsConsoleUserInterface;
class clsZR3Form;

/// Runs a step; a run-time error in it is told, and the status says what it stands for.
clsExitStatus mdGuarded(
    clsConsoleUserInterface &console, clsExitStatus onError, const std::function<clsExitStatus()> &step);

/// Whether a claim has to be sound in all its parts to be of use.
enum class clsSoundness { InAllParts, InSome };

/// Reads the claim of a path; what keeps it from that is told.
clsExitStatus mdLoadClaim(clsConsoleUserInterface &console, clsZR3Form &form, const QString &path,
    clsSoundness soundness = clsSoundness::InAllParts);
