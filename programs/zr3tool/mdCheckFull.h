#pragma once

#include "costing/checking/clsFinding.h"
#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsJsonWriter;
class clsZR3Form;

/// What the look through a claim came to.
struct clsCheckedClaim {
    clsExitStatus status = clsExitStatus::Done;
    clsFindings findings {};
};

/// Reads a claim and looks through it; what keeps it from that is told.
clsCheckedClaim mdCheckedClaim(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &path);

void mdWriteFindings(clsJsonWriter &json, const clsFindings &findings);
/// One line for each finding, with what stands before it.
QString mdFindingsInLines(const clsFindings &findings, const QString &before = {});

/// Looks through the one claim of a command line and prints what it has found.
clsExitStatus mdCheckFull(clsConsoleUserInterface &console, const clsToolCommand &command);

/// Prints how a figure of a claim comes about.
clsExitStatus mdWhyFigure(const clsZR3Form &form, const clsToolCommand &command);
