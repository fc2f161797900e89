#pragma once

#include "costing/checking/clsFinding.h"
#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsJsonWriter;
class clsZR3Form;

/// The result of checking a claim.
struct clsCheckedClaim {
    clsExitStatus status = clsExitStatus::Done;
    clsFindings findings {};
};

/// Reads and checks a claim; failures to do so are reported.
clsCheckedClaim mdCheckedClaim(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &path);

void mdWriteFindings(clsJsonWriter &json, const clsFindings &findings);
/// One line for each finding, starting with `before`.
QString mdFindingsInLines(const clsFindings &findings, const QString &before = {});

/// Checks the only claim of a command line and prints the findings.
clsExitStatus mdCheckFull(clsConsoleUserInterface &console, const clsToolCommand &command);

/// Prints how a figure of a claim is computed.
clsExitStatus mdWhyFigure(const clsZR3Form &form, const clsToolCommand &command);
