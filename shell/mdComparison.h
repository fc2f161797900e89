#pragma once

#include "costing/comparing/clsClaimChanges.h"

struct clsLeftJournal;

/// What differs between two states of a claim, in words for the user.
struct clsComparison {
    QString before; ///< what the earlier state is, such as "On disk"
    QString now;
    QString trouble; ///< why it could not be told, or against what else it was held; empty where all is well
    clsClaimChanges changes;
};

/// Between the file of a claim that was not closed properly and its recovery copy. Where there is no file the copy is
/// held against an empty claim.
clsComparison mdCompareWithJournal(const clsLeftJournal &left);

/// Between the open claim and its file as it now is, which another program has changed.
clsComparison mdCompareWithDisk();
