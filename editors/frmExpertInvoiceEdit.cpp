#include "editors/mdScreens.h"

#include "editors/mdCalculateVAT.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

void rules(frmScreen &screen)
{
    mdCalculateVATByButton(screen, "txtNetAmount", "txtVATAmount");
}

} // namespace

/// One expert's invoice. The net amount is entered, not computed: the costs above it are only printed on the form.
const clsScreen &ScreenExpertInvoiceEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmExpertInvoiceEdit",
        .header = "Expert Invoice",
        .subCaption = "Change an expert invoice's settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Expert Invoice", {
                {Text,    "txtExpertGroup",               "Expert Group:*", 0, Required | SpellCheck},
                {Text,    "txtExpertType",                "Expert Type:*", 0, Required | SpellCheck},
                {Tick,    "chkPriorAuthorityObtained",    "Prior Authority Obtained:"},
                {Decimal, "txtPreparationHourlyRate",     "Preparation Hourly Rate:"},
                {Decimal, "txtTotalPrepCost",             "Total Prep Cost:"},
                {Decimal, "txtCourtAttendanceHourlyRate", "Court Attendance Hourly Rate:"},
                {Decimal, "txtTotalCourtCost",            "Total Court Cost:"},
                {Decimal, "txtTravelTimeCosts",           "Travel Time Costs:"},
                {Decimal, "txtOtherCosts",                "Other Costs:"},
                {Decimal, "txtNetAmount",                 "Net Amount:"},
                {Decimal, "txtVATAmount",                 "VAT Amount:", 0, NoteBeneath},
                {Button,  "cmdCalculate",                 "Calculate", 0, SameRow},
            }},
        },
        .rules = rules,
        .itemWord = "Expert Invoice",
        .add = []() -> clsXMLRecord * { return Form->AddExpertInvoice().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
