#include "editors/mdScreens.h"

/// The counts of one fee earner, typed instead of counted. None is required, in spite of the asterisks, which are
/// meant: a box that is left empty says 0.
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
