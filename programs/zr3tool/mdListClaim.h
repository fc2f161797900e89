#pragma once

#include "costing/mdClaimColumns.h"
#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsJsonWriter;

/// A claim in a list of claims.
struct clsListedClaim {
    clsExitStatus status = clsExitStatus::Done;
    QString path;
    std::optional<clsClaimColumns> columns {}; ///< none for a claim that can't be read
    int errors = 0;
    int warnings = 0;
    QString changed {};
    QString error {};
};

/// Reads a claim for the list; failures to read it or to compute a figure are reported. Doesn't forecast the forms,
/// which would take longer than everything else, so the errors and warnings don't include texts that print smaller or
/// cut off.
clsListedClaim mdListedClaim(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &path);
/// The list entry of a claim that can't be read.
clsListedClaim mdUnlistedClaim(const QString &path, clsExitStatus status, const QString &error);

// A claim's CSV line, and the header line.

QString mdListAsCsv(const clsListedClaim &claim);
QString mdListAsCsvHeader();
/// A readable table; `longestPath` is the width of the path column in characters.
QString mdListAsText(const clsListedClaim &claim, qsizetype longestPath);
QString mdListAsTextHeader(qsizetype longestPath);
void mdWriteListed(clsJsonWriter &json, const clsListedClaim &claim);
