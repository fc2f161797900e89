#include "editors/mdScreens.h"

/// The counts of one fee earner, typed instead of counted. None is required despite the asterisks: an empty box becomes
/// 0. Required behaviour; do not fix.
const clsScreen &ScreenCorrespondences()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCorrespondences",
        .header = "Correspondences",
        .subCaption = "Calls, letters in and letters out",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Correspondences", {
                {Integer, "txtCalls",      "Calls:*"},
                {Integer, "txtLettersIn",  "Letters In:*"},
                {Integer, "txtLettersOut", "Letters Out:*"},
            }},
        },
        .itemWord = "Correspondences",
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
