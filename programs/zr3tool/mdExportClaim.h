#pragma once

#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsZR3Form;

/// Where to write the document of one claim.
struct clsExportPlace {
    QString claim; ///< its path
    bool isNamedByFile = false;
    int number = 1; ///< counts claims whose documents would have the same name
    bool sharesFolder = false; ///< other exports use the folder at the same time
};

/// The result of an export.
struct clsExportOutcome {
    clsExitStatus status = clsExitStatus::Failed;
    QString document; ///< its path
    bool isPassedBy = false; ///< the document already existed and is newer than its claim
    QString pdf {}; ///< the PDF's path, if one was requested and made
};

/// Exports an open claim.
clsExportOutcome mdExportClaim(
    clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command, const clsExportPlace &place);
