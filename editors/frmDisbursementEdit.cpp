#include "editors/mdScreens.h"

#include "editors/mdCalculateVAT.h"
#include "editors/oCounselBox.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

void rules(frmScreen &screen)
{
    mdCalculateVATByButton(screen, "txtAmount", "txtVAT");
}

} // namespace

/// A payment made by the firm; with the tick it is a counsel's fee. The amounts have an asterisk but are not checked by
/// Save, because their boxes are never blank.
const clsScreen &ScreenDisbursementEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmDisbursementEdit",
        .header = "Disbursement",
        .subCaption = "Change a disbursement's settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Disbursement", {
                {Text,    "txtDescription", "Description:*", 35, Required | SpellCheck},
                {Decimal, "txtAmount",      "Amount:*"},
                {Decimal, "txtVAT",         "VAT:*", 0, NoteBeneath},
                {Button,  "cmdCalculate",   "Calculate", 0, SameRow},
                {.kind = Other, .control = "oCounsel", .caption = "Counsel:", .flags = Kept,
                 .other = &CounselOfItem},
                {Date,    "txtDateOfWork",  "Date of Work:", 0, Kept},
            }},
        },
        .rules = rules,
        .itemWord = "Disbursement",
        .add = []() -> clsXMLRecord * { return Form->AddDisbursement().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
