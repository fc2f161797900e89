#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// A named percentage. Any rate is allowed, even an empty one, which has no effect.
const clsScreen &ScreenEnhancementEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmEnhancementEdit",
        .header = "Enhancement",
        .subCaption = "Change enhancement settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Enhancement", {
                {Text,    "txtName", "Name:*", 0, Required},
                // Marked as required but not checked: Save only checks the name.
                {Decimal, "txtRate", "Rate:*"},
            }},
        },
        .itemWord = "Enhancement",
        .add = []() -> clsXMLRecord * { return Form->AddEnhancement().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
