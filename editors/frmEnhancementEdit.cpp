#include "editors/mdScreens.h"

#include "controls/oDecimalBox.h"
#include "editors/frmSection.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdGlobals.h"

namespace {

/// A box that nobody has been in is empty, and a rate is not: what prices the bill takes no empty text for one.
void rules(frmSection &screen)
{
    QObject::connect(&screen, &frmSection::Loaded, &screen, [&screen] {
        auto &rate = screen.Box<oDecimalBox>("txtRate");
        if (rate.Text().isEmpty())
            rate.setText(QStringLiteral("0.00"));
    });
}

} // namespace

/// A named percentage. Any rate is taken, one of nothing too, which has no effect.
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
                // Marked as required and not asked for: a Save looks at the name only.
                {Decimal, "txtRate", "Rate:*"},
            }},
        },
        .rules = rules,
        .itemWord = "Enhancement",
        .add = []() -> clsXMLRecord * { return Form->AddEnhancement().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
