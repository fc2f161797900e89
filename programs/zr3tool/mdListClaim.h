#pragma once

#include "costing/mdClaimColumns.h"
#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsJsonWriter;

/// A claim in a list of claims.
struct clsListedClaim {
    clsExitStatus status = clsExitStatus::Done;
    QString path;
    std::optional<clsClaimColumns> columns {}; ///< nothing of a claim that can't be read
    int errors = 0;
    int warnings = 0;
    QString changed {};
    QString error {};
};

/// Reads a claim for the list; what keeps it from that, or a figure from being computed, is told. The forms are not
/// forecast, which takes longer than all else: what is printed smaller or cut is not among the errors and warnings.
clsListedClaim mdListedClaim(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &path);
/// One that can't be read.
clsListedClaim mdUnlistedClaim(const QString &path, clsExitStatus status, const QString &error);

// Its line, as a table of each kind has it, and the line that such a table begins with.

QString mdListAsCsv(const clsListedClaim &claim);
QString mdListAsCsvHeader();
/// For people. Paths have so many characters.
QString mdListAsText(const clsListedClaim &claim, qsizetype longestPath);
QString mdListAsTextHeader(qsizetype longestPath);
void mdWriteListed(clsJsonWriter &json, const clsListedClaim &claim);
