#include "editors/mdScreens.h"

#include "base/mdCustomMessages.h"
#include "controls/oAllPurposeBox.h"
#include "editors/frmScreen.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdReplacements.h"

namespace {

bool mayStore(const frmScreen &screen)
{
    auto &inputText = screen.Box<oAllPurposeBox>("txtInputText");
    if (IsValidInputText(inputText.Text()))
        return true;
    mdCustomMessages(QStringLiteral("Only alpha-numeric characters are allowed in the Input Text field"),
        QStringLiteral("Invalid Characters"));
    inputText.setFocus(Qt::TabFocusReason);
    return false;
}

void rules(frmScreen &screen)
{
    screen.setMayStore([&screen] { return mayStore(screen); });
}

} // namespace

/// An abbreviation and its full text. The box of the abbreviation expands nothing: it would replace the abbreviation as
/// soon as a blank is typed after it.
const clsScreen &ScreenReplacementEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmReplacementEdit",
        .header = "Replacement",
        .subCaption = "Change input and output text",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "", {
                {Text, "txtInputText",  "Input Text:*", 0, Required | NoReplacements},
                {Text, "txtOutputText", "Output Text:*", 0, Required},
            }},
        },
        .rules = rules,
        .itemWord = "Replacement",
        .add = []() -> clsXMLRecord * { return Preferences->AddReplacement().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
