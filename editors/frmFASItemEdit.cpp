#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// A hearing paid by units, with its bolt-ons and fixed payments. Its VAT is typed, not computed.
const clsScreen &ScreenFASItemEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmFASItemEdit",
        .header = "FAS Item",
        .subCaption = "Change a family advocacy scheme item's settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Family Advocacy Scheme Item", {
                {.kind = Date, .control = "txtDate", .caption = "Date:*", .flags = Required | Kept,
                 .member = "dDate"},
                {Text,    "txtLevelOfCourt",              "Type of Judge:", 0, SpellCheck},
                {Text,    "txtFDR",                       "Interim / FAM or FDR:", 0, SpellCheck},
                {Integer, "txtActualTimeSpent",           "Actual Time Spent (mins):"},
                {Integer, "txtHearingUnits",              "Hearing Units:", 0, SameRow},
                {Decimal, "txtRateForUnits",              "Rate for Units:"},
                {Decimal, "txtBoltOnClaimed",             "% Bolt-on Claimed:"},
                {Text,    "txtBoltOnDescription",         "Bolt-on Description:", 35, SpellCheck},
                {Decimal, "txtCourtBundlePayment",        "Court Bundle Payment:"},
                {Decimal, "txtSettlementFee",             "Settlement Fee:"},
                {Decimal, "txtExceptionalTravel",         "Exceptional Travel:"},
                {Text,    "txtExceptionalTravelDistance", "Distance:", 0, SpellCheck},
                {Text,    "txtExceptionalTravelReason",   "Reason:", 35, SpellCheck},
                {Decimal, "txtVATForFAS",                 "VAT for FAS:"},
            }},
        },
        .itemWord = "Family Advocacy Scheme Item",
        .add = []() -> clsXMLRecord * { return Form->AddFASItem().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
