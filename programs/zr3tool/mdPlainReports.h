#pragma once

#include "costing/mdTotalsReport.h"
#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsJsonWriter;
class clsZR3Form;

/// Tells of figures that can't be computed, where there are some; the status says whether there are.
clsExitStatus mdTellTotals(clsConsoleUserInterface &console, const clsTotalsReport &report);

/// What the check of blank items has found.
struct clsBlankItems {
    int scheduleItems = 0;
    int disbursements = 0;
    QString message; ///< its lines end in CR LF

    bool isFound() const { return scheduleItems > 0 || disbursements > 0; }
};

clsBlankItems mdBlankItems(const clsZR3Form &form);
/// Its message with an end to its last line.
QString mdBlankItemsInLines(const clsBlankItems &blank);
void mdWriteBlankItems(clsJsonWriter &json, const clsBlankItems &blank);

/// Tells that a result did not reach its reader, say on a full disk: a failure like any other.
clsExitStatus mdTellUnwritten();
