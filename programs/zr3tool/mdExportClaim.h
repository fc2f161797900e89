#pragma once

#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsZR3Form;

/// Where the document of one claim goes.
struct clsExportPlace {
    QString claim; ///< its path
    bool isNamedByFile = false;
    int number = 1; ///< of several claims whose documents would have one name
    bool sharesFolder = false; ///< other exports work there at the same time
};

/// What an export came to.
struct clsExportOutcome {
    clsExitStatus status = clsExitStatus::Failed;
    QString document; ///< its path
    bool isPassedBy = false; ///< it was there, and newer than its claim
    QString pdf {}; ///< the same as PDF, where that was asked for and made
};

/// Exports a claim that is open.
clsExportOutcome mdExportClaim(
    clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command, const clsExportPlace &place);
