#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <functional>

class clsConsoleUserInterface;
class clsZR3Form;

/// Writes the claim, once it is changed.
using clsClaimWriter = std::function<clsExitStatus(clsZR3Form &form)>;

/// Prints a list of a claim as CSV.
clsExitStatus mdPrintTable(clsConsoleUserInterface &console, const clsZR3Form &form, const clsToolCommand &command);

/// Adds the items of a table to the claim and writes it; where a row is wrong, nothing is written.
clsExitStatus mdImport(
    clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command, const clsClaimWriter &write);
