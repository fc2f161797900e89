#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// A barrister: the name, the account that the claim names beside the fee, and whether VAT is charged.
const clsScreen &ScreenCounselEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCounselEdit",
        .header = "Counsel",
        .subCaption = "Change settings for a barrister",
        .iconGroup = 5,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Counsel Setup", {
                {Text, "txtName",          "Name:*", 0, Required},
                {Text, "txtAccountNumber", "Account Number:"},
                {Tick, "chkVAT",           "VAT:"},
            }},
        },
        .itemWord = "Counsel",
        .add = []() -> clsXMLRecord * { return Form->AddCounsel().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
