#pragma once

#include "tests/editors/clsExpectedScreen.h"

// The expected content of the fee earners' screens, written by hand. An item's editor has no section.

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedFeeEarnerScreens {
    {"Fee Earners / Rates", "frmFeeEarnerGroups", "Fee Earners / Rates",
     "Set up fee earners and rates for the bill element of the form", "", {
        {"sgFeeEarnerGroups", "Fee Earner Groups", nullptr, 'g', 0, false, false, "bxFeeEarnerGroups"},
        {"cmdAddFeeEarnerGroup", "Add", nullptr, 'b', 0, false, false, "bxFeeEarnerGroups"},
        {"sgFeeEarners", "Fee Earners", nullptr, 'g', 0, false, false, "bxFeeEarners"},
        {"cmdAddFeeEarner", "Add", nullptr, 'b', 0, false, false, "bxFeeEarners"},
    }, {{"bxFeeEarnerGroups", "Fee Earner Groups"}, {"bxFeeEarners", "Fee Earners"}}},
    {"", "frmFeeEarnerGroupEdit", "Fee Earner Group", "Change settings for a fee earner group", "", {
        {"txtReference", "Reference:*", nullptr, 't'},
        {"txtName", "Name:*", nullptr, 'o'},
        {"chkEnhance", "Enhance:", nullptr, 'x'},
        {"txtEnhancementRate", "%", nullptr, 'm'},
        {"chkEnhanceComms", "Enhance Communications:", nullptr, 'x'},
        {"txtHourly", "Hourly:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"txtCalls", "Calls:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"txtLettersIn", "Letters In:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"txtLettersOut", "Letters Out:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"txtAdvocacy", "Advocacy:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"txtCounsel", "Counsel:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"txtTravelAndWaiting", "Travel and Waiting:*", nullptr, 'm', 0, false, false, "bxRates"},
        {"cmdLoad", "Load", nullptr, 'b', 0, false, false, "bxRates"},
        {"cmdEditRateSets", "Edit Rate Sets", nullptr, 'b', 0, false, false, "bxRates"},
    }, {{"bxGeneral", "Group Setup"}, {"bxRates", "Rates"}}},
    {"", "frmFeeEarnerEdit", "Fee Earner", "Change settings for a fee earner", "", {
        {"txtReference", "Reference:*", nullptr, 't'},
        {"cmbGroup", "Group:", nullptr, 'l'},
    }, {{"bxGeneral", "Fee Earner Setup"}}},
};
// clang-format on
