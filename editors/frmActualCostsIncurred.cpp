#include "editors/mdScreens.h"

#include "base/mdFormatMoney.h"
#include "base/mdPercentageCalculate.h"
#include "controls/oBoxNote.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"
#include "editors/frmScreen.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

/// A group's button, and the two amounts that it fills from the bill.
struct clsLoadFromBill {
    const char *button;
    const char *profitCosts;
    const char *VAT;
};

// clang-format off
constexpr clsLoadFromBill LoadFromBill[] = {
    {"cmdCASLoadFromScheduleOfTime", "txtCareAndSupervisionProfitCosts", "txtCareAndSupervisionProfitCostsVAT"},
    {"cmdPLCLoadFromScheduleOfTime", "txtPrivateLawProfitCosts",         "txtPrivateLawProfitCostsVAT"},
};
// clang-format on

/// Overwrites typed amounts without asking; nothing is stored before Save. The VAT is computed from the amount as shown
/// in the box, whether or not the claim charges VAT.
void loadFromBill(const frmScreen &screen, const clsLoadFromBill &row)
{
    auto &profitCosts = screen.Box<oDecimalBox>(row.profitCosts);
    const Money all = ProfitCostsTotal(*Form);
    const Money advocacy = AdvocacyTotal(*Form);
    profitCosts.setText(MoneyToText(all - advocacy));
    const Money shown = MoneyFromText(profitCosts.Text());
    screen.Box<oDecimalBox>(row.VAT).setText(MoneyToText(PercentageCalculate(shown, Form->VATRate())));
    if (all < advocacy)
        oBoxNote::Show(profitCosts,
            {QStringLiteral("Below zero: profit costs %1 less advocacy %2")
                    .arg(mdFormatMoney(all), mdFormatMoney(advocacy)),
                Sign::Warning});
    else
        oBoxNote::Clear(profitCosts);
}

void rules(frmScreen &screen)
{
    for (const clsLoadFromBill &row : LoadFromBill)
        QObject::connect(&screen.Box<oCustomButton>(row.button), &oCustomButton::Click, &screen,
            [&screen, &row] { loadFromBill(screen, row); });
}

} // namespace

/// Care proceedings and private law cases under the fixed-fee schemes. The groups depend neither on each other nor on
/// the kind of case: everything stays enabled. Ticks with the same letter are exclusive, including the levels of work,
/// although that question reads as if several could apply. "Load From Bill" comes after the amounts that it fills, so
/// that they are visible when they change.
const clsScreen &ScreenActualCostsIncurred()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmActualCostsIncurred",
        .header = "Actual Costs Incurred",
        .subCaption = "Enter details of the actual costs incurred",
        .iconGroup = 1,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Actual Costs",
        .record = []() -> clsXMLRecord * { return &Form->ActualCostsIncurred; },
        .frames = {
            {"bxCareAndSupervision", "Care and Supervision Cases", {
                {Decimal, "txtCareAndSupervisionProfitCosts",     "Profit Costs (exc adv & enh):", 0, NoteBeneath},
                {Decimal, "txtCareAndSupervisionProfitCostsVAT",  "Profit Costs VAT:", 0, NoteBeneath},
                {Button,  "cmdCASLoadFromScheduleOfTime", "Load From Bill", 0, SameRow},
                {Separator},
                {Question, "", "In which region are you based?"},
                {Tick, "chkCareAndSupervisionMidlands",      "Midlands:", 0, None, 'R'},
                {Tick, "chkCareAndSupervisionNorth",         "North:",    0, None, 'R'},
                {Tick, "chkCareAndSupervisionSouth",         "South:",    0, None, 'R'},
                {Tick, "chkCareAndSupervisionWales",         "Wales:",    0, None, 'R'},
                {ColumnBreak},
                {Question, "", "Is your client:"},
                {Tick, "chkCareAndSupervisionAChild",        "A Child:",  0, None, 'C'},
                {Tick, "chkCareAndSupervisionAParent",       "A Parent:", 0, None, 'C'},
                {Tick, "chkCareAndSupervisionJoined",        "Joined:",   0, None, 'C'},
                {Question, "", "How many are you acting for?"},
                {Tick, "chkCareAndSupervisionActing1",       "1:",        0, None, 'A'},
                {Tick, "chkCareAndSupervisionActing2OrMore", "2 or More:", 0, None, 'A'},
                {Question, "", "In front of whom did case finish?"},
                {Tick, "chkCareAndSupervisionCourtHigh",     "High Court Judge:",          0, None, 'J'},
                {Tick, "chkCareAndSupervisionCourtCounty",   "District or Circuit Judge:", 0, None, 'J'},
                {Tick, "chkCareAndSupervisionCourtFamilyProceeding", "Lay Justices or Clerks:", 0, None, 'J'},
            }},
            {"bxPrivateLaw", "Private Law Cases", {
                {Decimal, "txtPrivateLawProfitCosts",    "Profit Costs (exc adv & enh):", 0, NoteBeneath},
                {Decimal, "txtPrivateLawProfitCostsVAT", "Profit Costs VAT:", 0, NoteBeneath},
                {Button,  "cmdPLCLoadFromScheduleOfTime", "Load From Bill", 0, SameRow},
                {Separator},
                {Question, "", "In which region are you based?"},
                {Tick, "chkPrivateLawLondon",            "London:",     0, None, 'N'},
                {Tick, "chkPrivateLawNonLondon",         "Non-London:", 0, None, 'N'},
                {Question, "", "Have you made a previous claim for payment on account in these proceedings?"},
                {Tick, "chkPrivateLawPreviousClaimYes",  "Yes:"},
                {Tick, "chkPrivateLawPreviousClaimNo",   "No:"},
                {ColumnBreak},
                {Question, "", "In front of whom did case finish?"},
                {Tick, "chkPrivateLawCourtHigh",         "High Court Judge:",          0, None, 'P'},
                {Tick, "chkPrivateLawCourtCounty",       "District or Circuit Judge:", 0, None, 'P'},
                {Tick, "chkPrivateLawCourtFamilyProceeding", "Lay Justices or Clerks:", 0, None, 'P',
                 "PrivateLawcourtFamilyProceeding"},
                {Question, "", "Are you claiming a settlement fee?"},
                {Tick, "chkPrivateLawSettlementFeeYes",  "Yes:"},
                {Tick, "chkPrivateLawSettlementFeeNo",   "No:"},
                {Question, "", "Which levels of work did you undertake?"},
                {Tick, "chkPrivateLawLevel3",            "Level 3:",     0, None, 'L'},
                {Tick, "chkPrivateLawLevel4",            "Level 4",      0, None, 'L'},
                {Tick, "chkPrivateLawEnforcement",       "Enforcement:", 0, None, 'L'},
                {Text, "txtPrivateLawWorkAtAllLevelsReasons",
                 "If you did not undertake work at all levels covered by your certificate, please explain why:",
                 100, MultiLine | SpellCheck | OverRun},
            }},
            {"bxGeneral", "Actual Costs Incurred", {
                {Question, "", "Is this an Exceptional Case?"},
                {Tick,    "chkExceptionalCaseYes", "Yes:"},
                {Tick,    "chkExceptionalCaseNo",  "No:"},
                {ColumnBreak},
                {Decimal, "txtFixedFee",           "What fixed fee would apply?", 0, NoteBeneath},
            }},
        },
        .rules = rules,
    };
    // clang-format on
    return screen;
}
