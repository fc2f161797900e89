#include "editors/mdScreens.h"

#include "base/Money.h"
#include "base/mdNumberText.h"
#include "controls/oDecimalBox.h"
#include "editors/frmScreen.h"
#include "editors/mdConnectCalculate.h"
#include "editors/mdRateRows.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"

namespace {

/// A rate as a fraction of the hourly one.
struct clsShare {
    const char *control;
    double factor;
};

// clang-format off
constexpr clsShare Shares[] = {
    {"txtCalls",            0.1},
    {"txtLettersOut",       0.1},
    {"txtLettersIn",        0.05},
    {"txtAdvocacy",         1.0},
    {"txtCounsel",          1.0},
    {"txtTravelAndWaiting", 1.0},
};
// clang-format on

void calculate(const frmScreen &screen)
{
    const double hourly = MoneyFromDouble(TextValue(screen.Box<oDecimalBox>("txtHourly").Text())).toDouble();
    for (const clsShare &share : Shares)
        screen.Box<oDecimalBox>(share.control).setText(MoneyToText(RoundMoney2(hourly * share.factor)));
}

void rules(frmScreen &screen)
{
    mdConnectCalculate(screen, [&screen] { calculate(screen); });
}

} // namespace

/// A named set of rates to copy to fee earner groups.
const clsScreen &ScreenPreferencesRateSetEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmPreferencesRateSetEdit",
        .header = "Rate Set",
        .subCaption = "Edit a standard rate set",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "", mdJoinedRows({
                {{Text, "txtName", "Name:*", 0, Required}},
                mdRateRows({{Button, "cmdCalculate", "Calculate", 0, SameRow}}),
            })},
        },
        .rules = rules,
        .itemWord = "Rate Set",
        .add = []() -> clsXMLRecord * { return Preferences->AddRateSet().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
