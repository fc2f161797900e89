#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// Whether counsel's claims for payment have been paid.
const clsScreen &ScreenCounselOutstandingClaims()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCounselOutstandingClaims",
        .header = "Counsel Outstanding Claims",
        .subCaption = "Enter details of counsel outstanding claims",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Counsel Outstanding Claims",
        .record = []() -> clsXMLRecord * { return &Form->CounselOutstandingClaims; },
        .frames = {
            {"bxGeneral", "Counsel Outstanding Claims", {
                {Question, "", "Have all outstanding claims for payment by counsel been paid by LAA?"},
                {Tick, "chkOutstandingClaimsYes", "Yes:"},
                {Tick, "chkOutstandingClaimsNo",  "No:"},
            }},
        },
    };
    // clang-format on
    return screen;
}
