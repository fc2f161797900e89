#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <functional>

class clsConsoleUserInterface;
class clsZR3Form;

/// Writes the changed claim.
using clsClaimWriter = std::function<clsExitStatus(clsZR3Form &form)>;

/// Prints a list of a claim as CSV.
clsExitStatus mdPrintTable(clsConsoleUserInterface &console, const clsZR3Form &form, const clsToolCommand &command);

/// Adds the items of a table to the claim and writes it; writes nothing if any row is wrong.
clsExitStatus mdImport(
    clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command, const clsClaimWriter &write);
