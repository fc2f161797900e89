#pragma once

#include "costing/checking/clsClaimCheck.h"

#include <span>

/// All rules, in the order of their findings.
std::span<const clsCheckRule> mdCheckRules();

// The rules by subject. The table of rules describes their findings.

// Figures
void mdCheckFigures(clsClaimCheck &check);

// Dates
void mdCheckDateMissing(clsClaimCheck &check);
void mdCheckDateFuture(clsClaimCheck &check);
void mdCheckDateBeforeCertificate(clsClaimCheck &check);
void mdCheckDateAfterFinalWork(clsClaimCheck &check);

// The schedule of time
void mdCheckTimeZero(clsClaimCheck &check);
void mdCheckRateZero(clsClaimCheck &check);
void mdCheckDayHours(clsClaimCheck &check);
void mdCheckDoubleEntry(clsClaimCheck &check);
void mdCheckLongItem(clsClaimCheck &check);

// Money
void mdCheckAmountZero(clsClaimCheck &check);
void mdCheckNetDiffers(clsClaimCheck &check);
void mdCheckVATDiffers(clsClaimCheck &check);
void mdCheckVoucher(clsClaimCheck &check);
void mdCheckJointShares(clsClaimCheck &check);
void mdCheckLoadNegative(clsClaimCheck &check);
void mdCheckLoadStale(clsClaimCheck &check);
void mdCheckCostsLimit(clsClaimCheck &check);

// Letters and calls
void mdCheckGroupNotBilled(clsClaimCheck &check);
void mdCheckCommunicationsRateZero(clsClaimCheck &check);

// Questions and texts of the pages
void mdCheckQuestionOpen(clsClaimCheck &check);
void mdCheckReasonsMissing(clsClaimCheck &check);
void mdCheckMissing(clsClaimCheck &check);

// Printing
void mdCheckEnhancementReasons(clsClaimCheck &check);
void mdCheckPaper(clsClaimCheck &check);
void mdCheckLostSheets(clsClaimCheck &check);

// Texts
void mdCheckCharacters(clsClaimCheck &check);
