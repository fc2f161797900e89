#pragma once

#include "costing/clsBill.h"

#include <QString>

#include <optional>
#include <vector>

/// A total of the claim as the strip of the main window shows it.
struct clsClaimTotal {
    QString Key; ///< for `mdWhyClaimTotal`
    QString Words;
    Money Value {};
    QString Failure {}; ///< why it can't be computed; empty where it can

    bool hasFailed() const { return !Failure.isEmpty(); }
};

struct clsClaimTotals {
    std::vector<clsClaimTotal> Figures {}; ///< Schedule to Total
    std::vector<clsClaimTotal> Apart {}; ///< Counsel; on Claim 1A the advocacy scheme and the fixed fee too
    clsClaimTotal Other {}; ///< Letters and calls, Experts and Disbursements in one, where there is room for one only
    std::optional<Money> Limit {}; ///< of the costs
    clsClaimTotal Costs {}; ///< what is held against the limit
};

/// All of them; one that can't be computed keeps none of the others. The total of the advocacy scheme's VAT may write
/// to the claim: give it a copy.
clsClaimTotals mdClaimTotals(const clsBill &bill);
