#pragma once

#include "costing/comparing/clsClaimChanges.h"

struct clsLeftJournal;

/// The differences between two states of a claim, in words for the user.
struct clsComparison {
    QString before; ///< caption of the earlier state, such as "On disk"
    QString now;
    QString trouble; ///< why the comparison failed or used another state; empty if all is well
    clsClaimChanges changes;
};

/// Compares the file of a claim that was not closed properly with its recovery copy. If there is no file, the copy is
/// compared with an empty claim.
clsComparison mdCompareWithJournal(const clsLeftJournal &left);

/// Compares the open claim with its file, which another program has changed.
clsComparison mdCompareWithDisk();
