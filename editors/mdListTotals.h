#pragma once

#include "base/Money.h"

#include <QString>

#include <memory>
#include <vector>

class clsZR3Item;

/// The total below a list of the claim.
struct clsListTotal {
    QString counted; ///< the number of items, or of those left out of the total
    Money value;
};

// The totals are the printed figures of the bill. Raises the error of a figure that can't be computed.

clsListTotal mdScheduleListTotal();
clsListTotal mdExpertsListTotal();
/// Without counsel's fees, which are billed separately.
clsListTotal mdDisbursementsListTotal();
clsListTotal mdHearingsListTotal();
/// Two groups of each kind are billed, and only those with a rate.
clsListTotal mdCommunicationsListTotal();

// The same for the items marked in a list.

using clsMarkedItems = std::vector<std::shared_ptr<clsZR3Item>>;

clsListTotal mdScheduleListSum(const clsMarkedItems &marked);
clsListTotal mdExpertsListSum(const clsMarkedItems &marked);
clsListTotal mdDisbursementsListSum(const clsMarkedItems &marked);
clsListTotal mdHearingsListSum(const clsMarkedItems &marked);
