#pragma once

#include "costing/mdTotalsReport.h"
#include "programs/zr3tool/clsToolCommand.h"

class clsConsoleUserInterface;
class clsJsonWriter;
class clsZR3Form;

/// Reports the figures that can't be computed, if any; the status says whether there are any.
clsExitStatus mdTellTotals(clsConsoleUserInterface &console, const clsTotalsReport &report);

/// The result of the check for blank items.
struct clsBlankItems {
    int scheduleItems = 0;
    int disbursements = 0;
    QString message; ///< lines end in CR LF

    bool isFound() const { return scheduleItems > 0 || disbursements > 0; }
};

clsBlankItems mdBlankItems(const clsZR3Form &form);
/// The message, with an end to its last line.
QString mdBlankItemsInLines(const clsBlankItems &blank);
void mdWriteBlankItems(clsJsonWriter &json, const clsBlankItems &blank);

/// Reports that a result could not be written, for example to a full disk.
clsExitStatus mdTellUnwritten();
