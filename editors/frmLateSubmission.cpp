#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// Why the claim is late. A longer explanation runs on to a continuation sheet.
const clsScreen &ScreenLateSubmission()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmLateSubmission",
        .header = "Late Submission",
        .subCaption = "Enter details of late submission",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Late Submission",
        .record = []() -> clsXMLRecord * { return &Form->LateSubmission; },
        .frames = {
            {"bxGeneral", "Late Submission", {
                {.kind = Date, .control = "txtDate", .caption = "Date:", .member = "dDate"},
                {Text, "txtExplanation", "Explanation:", 400, MultiLine | SpellCheck | OverRun},
            }},
        },
    };
    // clang-format on
    return screen;
}
