#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// The work claimed, and the reasons for an enhancement. Both texts can run on to continuation sheets.
const clsScreen &ScreenDetailsOfWork()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmDetailsOfWork",
        .header = "Details of Work Being Claimed",
        .subCaption = "Enter details of the work being claimed",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Details of Work",
        .record = []() -> clsXMLRecord * { return &Form->DetailsOfWork; },
        .frames = {
            {"bxGeneral", "Details of Work Being Claimed", {
                {Text, "txtDetailsOfCase", "Details of Work Being Claimed", 770,
                 MultiLine | SpellCheck | OverRun | NoCaption},
            }},
            {"bxClaim1", "Claim1 Only", {
                {Text, "txtDetailsOfEnhancement",
                 "If you are seeking an enhanced rate or uplift, state percentage sought and give full reasons:", 710,
                 MultiLine | SpellCheck | OverRun},
            }},
        },
    };
    // clang-format on
    return screen;
}
