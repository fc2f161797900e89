#pragma once

#include "costing/clsBill.h"

#include <QString>

#include <optional>
#include <vector>

/// A total of the claim for the strip of the main window.
struct clsClaimTotal {
    QString Key; ///< for `mdWhyClaimTotal`
    QString Words;
    Money Value {};
    QString Failure {}; ///< why it can't be computed; empty if it can

    bool hasFailed() const { return !Failure.isEmpty(); }
};

struct clsClaimTotals {
    std::vector<clsClaimTotal> Figures {}; ///< Schedule to Total
    std::vector<clsClaimTotal> Apart {}; ///< Counsel; on Claim 1A the advocacy scheme and the fixed fee too
    clsClaimTotal Other {}; ///< Letters and calls, Experts and Disbursements in one, if there is room for only one
    std::optional<Money> Limit {}; ///< the costs limit
    clsClaimTotal Costs {}; ///< the amount compared with the limit
};

/// All of them; an error in one doesn't affect the others. The advocacy scheme's VAT total may write to the claim: pass
/// a copy.
clsClaimTotals mdClaimTotals(const clsBill &bill);
