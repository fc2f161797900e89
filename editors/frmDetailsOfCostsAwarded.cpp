#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// Costs awarded to the client, and how much of them was recovered. The total is typed, not computed, and amounts that
/// depend on a question stay enabled whatever the answer. Only one of the forms prints the total, as the caption of its
/// frame says; it stays enabled for both. The frames after it exist only to keep the fields in order and have no
/// caption.
const clsScreen &ScreenDetailsOfCostsAwarded()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmDetailsOfCostsAwarded",
        .header = "Details of Costs Awarded",
        .subCaption = "Enter details of the costs awarded",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Details of Costs Awarded",
        .record = []() -> clsXMLRecord * { return &Form->DetailsOfCostsAwarded; },
        .frames = {
            {"bxGeneral", "Details of Costs Awarded", {
                {Decimal, "txtPreCertificateCosts",               "Pre-certificate costs awarded:", 0, NoteBeneath},
                {Decimal, "txtDuringCertificateCostsLSC",
                 "During certificate costs awarded (legal aid prescribed rates):", 0, NoteBeneath},
                {Decimal, "txtDuringCertificateCostsMarketRates", "During certificate costs awarded (Market Rates):", 0, NoteBeneath},
            }},
            {"bxClaim1A", "Claim1A Only", {
                {Decimal, "txtTotalCostsAwarded",                 "Total costs awarded:", 0, NoteBeneath},
            }},
            {"oFrame1", "", {
                {Question, "", "Are legal advice and assistance, and/or Legal Help costs included in the "
                               "pre-certificate costs Awarded?"},
                {Tick,    "chkLegalHelpInPreCertificateCostsYes",    "Yes:"},
                {Tick,    "chkLegalHelpInPreCertificateCostsNo",     "No:"},
                {Decimal, "txtLegalHelpInPreCertificateCostsAmount", "If yes, tell us the amount:", 0, NoteBeneath},
                {Separator},
                {Decimal, "txtInterestOnAllCosts",                   "Interest on all costs:", 0, NoteBeneath},
                {Date,    "txtDateInterestCommenced",                "Date interest commenced or commences:", 0, NoteBeneath},
                {Text,    "txtInterestBreakdown",
                 "Please provide a breakdown where interest has been calculated:", 60, MultiLine | SpellCheck},
            }},
            {.name = "oFrame2", .caption = "", .rows = {
                {Decimal, "txtAmountRecoveredToDate",  "Amount recovered to date:", 0, NoteBeneath},
                {Date,    "txtDateOrderServed",        "Date order was served:", 0, NoteBeneath},
                {Text,    "txtAddressOfService",       "Address of service:", 75, MultiLine},
                {Separator},
                {Question, "", "Does the court order say leave of the court is required before enforcement can take "
                               "place?"},
                {Tick,    "chkLeaveYes",               "Yes:"},
                {Tick,    "chkLeaveNo",                "No:"},
                {Question, "", "Has a determination of the debtor's means been undertaken by the court?"},
                {Tick,    "chkDeterminationYes",       "Yes:"},
                {Tick,    "chkDeterminationNo",        "No:"},
                {Decimal, "txtDeterminationAmount",    "If yes, give the amount:", 0, NoteBeneath},
                {Question, "", "Has any offer been made by the debtor?"},
                {Tick,    "chkOfferByDebtorYes",       "Yes:"},
                {Tick,    "chkOfferByDebtorNo",        "No:"},
                {Text,    "txtOfferByDebtorDetails",   "If so, give details:", 85, MultiLine | SpellCheck},
            }, .startsColumn = true},
        },
    };
    // clang-format on
    return screen;
}
