#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <functional>

class clsConsoleUserInterface;
class clsZR3Form;

/// Runs a step. A run-time error in it is reported, and the result is then `onError`.
clsExitStatus mdGuarded(
    clsConsoleUserInterface &console, clsExitStatus onError, const std::function<clsExitStatus()> &step);

/// Whether every part of a claim must be valid.
enum class clsSoundness { InAllParts, InSome };

/// Reads the claim at a path; failures are reported.
clsExitStatus mdLoadClaim(clsConsoleUserInterface &console, clsZR3Form &form, const QString &path,
    clsSoundness soundness = clsSoundness::InAllParts);
