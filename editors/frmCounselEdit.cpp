#include "editors/mdScreens.h"

#include "editors/mdEditedForm.h"
#include "editors/mdPeopleLists.h"
#include "formdata/clsZR3Form.h"

/// A barrister: the name, the account printed beside the fee, and whether VAT is charged.
clsScreen mdCounselEditor(const char *name)
{
    using enum clsRowKind;
    // clang-format off
    return {
        .name = name,
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
        .add = []() -> clsXMLRecord * { return mdEditedForm().AddCounsel().get(); },
        .fileMenu = false,
    };
    // clang-format on
}

const clsScreen &ScreenCounselEdit()
{
    static const clsScreen screen = mdCounselEditor("frmCounselEdit");
    return screen;
}
