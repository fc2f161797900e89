#pragma once

#include "base/Money.h"

#include <QString>

#include <memory>
#include <vector>

class clsZR3Item;

/// The total under a list of the claim.
struct clsListTotal {
    QString counted; ///< how many items there are, or how many of them the total leaves out
    Money value;
};

// They follow the bill: each is the figure that is printed. Where it can't be computed it is that error.

clsListTotal mdScheduleListTotal();
clsListTotal mdExpertsListTotal();
/// Counsel's fees are billed apart.
clsListTotal mdDisbursementsListTotal();
clsListTotal mdHearingsListTotal();
/// Of each kind two groups are billed, and none without a rate.
clsListTotal mdCommunicationsListTotal();

// The same of the items that are marked in a list.

using clsMarkedItems = std::vector<std::shared_ptr<clsZR3Item>>;

clsListTotal mdScheduleListSum(const clsMarkedItems &marked);
clsListTotal mdExpertsListSum(const clsMarkedItems &marked);
clsListTotal mdDisbursementsListSum(const clsMarkedItems &marked);
clsListTotal mdHearingsListSum(const clsMarkedItems &marked);
