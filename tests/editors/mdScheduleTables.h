#pragma once

#include "tests/editors/clsExpectedScreen.h"

// The screens of the schedule of time and of the advocacy scheme, and the editors of their items, whose `element` is
// that of the item.

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedScheduleScreens {
    {"Schedule of Time", "frmScheduleOfTime", "Schedule of Time", "Edit the schedule of time for your form", "", {
        {"sgScheduleOfTime", "Schedule of Time", nullptr, 'g'},
        {"cmdAddScheduleOfTimeItem", "Add", nullptr, 'b'},
        {"chkExcludeNonAdvocacy", "Exclude Non-Advocacy Items from Bill (Claim1A Only):", nullptr, 'x'},
    }, {{"bxGeneral", "Schedule of Time"}}},
    {"", "frmScheduleOfTimeItemEdit", "Schedule of Time Item", "Change a schedule of time item's settings",
     "scheduleoftimeitem", {
        {.control = "cmbFeeEarner", .caption = "Fee Earner:*", .answer = nullptr, .kind = 'l',
         .element = "feeearneruniqueid"},
        {.control = "txtDate", .caption = "Date:*", .answer = nullptr, .kind = 'd', .element = "ddate",
         .dateTick = true},
        {"cmbCode", "Code:*", nullptr, 'l'},
        {"txtDescription", "Description:", nullptr, 't', 0, false, true},
        {.control = "txtTime", .caption = "Time:*", .answer = nullptr, .kind = 'h', .element = "ttime"},
        {"chkAdvocacy", "Advocacy:", nullptr, 'x'},
        {"chkCounsel", "Counsel:", nullptr, 'x'},
        {"chkTravel", "Travel:", nullptr, 'x'},
        {"chkWaiting", "Waiting:", nullptr, 'x'},
        {"chkUseHourlyRate", "Use Hourly Rate:", nullptr, 'x'},
        {"oEnhancement", "Include in Enhancements:", nullptr, 'o'},
    }, {{"bxGeneral", "Schedule of Time Item"}}},
    {"Family Advocacy Scheme", "frmFamilyAdvocacyScheme", "Costs under Family Advocacy Scheme",
     "Edit the advocacy costs for your form", "", {
        {"sgFamilyAdvocacyScheme", "Costs under Family Advocacy Scheme", nullptr, 'g'},
        {"cmdAddFASItem", "Add", nullptr, 'b'},
    }, {{"bxGeneral", "Costs under Family Advocacy Scheme"}}},
    {"", "frmFASItemEdit", "FAS Item", "Change a family advocacy scheme item's settings", "fasitem", {
        {.control = "txtDate", .caption = "Date:*", .answer = nullptr, .kind = 'd', .element = "ddate"},
        {"txtLevelOfCourt", "Type of Judge:", nullptr, 't', 0, false, true},
        {"txtFDR", "Interim / FAM or FDR:", nullptr, 't', 0, false, true},
        {"txtActualTimeSpent", "Actual Time Spent (mins):", nullptr, 'i'},
        {"txtHearingUnits", "Hearing Units:", nullptr, 'i'},
        {"txtRateForUnits", "Rate for Units:", nullptr, 'm'},
        {"txtBoltOnClaimed", "% Bolt-on Claimed:", nullptr, 'm'},
        {"txtBoltOnDescription", "Bolt-on Description:", nullptr, 't', 35, false, true},
        {"txtCourtBundlePayment", "Court Bundle Payment:", nullptr, 'm'},
        {"txtSettlementFee", "Settlement Fee:", nullptr, 'm'},
        {"txtExceptionalTravel", "Exceptional Travel:", nullptr, 'm'},
        {"txtExceptionalTravelDistance", "Distance:", nullptr, 't', 0, false, true},
        {"txtExceptionalTravelReason", "Reason:", nullptr, 't', 35, false, true},
        {"txtVATForFAS", "VAT for FAS:", nullptr, 'm'},
    }, {{"bxGeneral", "Family Advocacy Scheme Item"}}},
};
// clang-format on
