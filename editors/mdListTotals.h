#pragma once

#include "base/Money.h"

#include <QString>

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
