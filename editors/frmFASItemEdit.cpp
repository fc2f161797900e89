#include "editors/mdScreens.h"

#include "controls/oDecimalBox.h"
#include "controls/oIntegerBox.h"
#include "editors/frmSection.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdGlobals.h"

namespace {

/// No amount is ever empty, also none that the user hasn't been to: without one the item could not be priced.
void fillEmptyFigures(const frmSection &screen)
{
    for (const clsScreenField &field : screen.Fields()) {
        if (auto *amount = qobject_cast<oDecimalBox *>(field.control); amount && amount->Text().isEmpty())
            amount->setText(QStringLiteral("0.00"));
        if (auto *number = qobject_cast<oIntegerBox *>(field.control); number && number->Text().isEmpty())
            number->setText(QStringLiteral("0"));
    }
}

void rules(frmSection &screen)
{
    QObject::connect(&screen, &frmSection::Loaded, &screen, [&screen] { fillEmptyFigures(screen); });
}

} // namespace

/// A hearing that is paid by units, with its bolt-ons and fixed payments. Its VAT is typed and not worked out.
const clsScreen &ScreenFASItemEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmFASItemEdit",
        .header = "FAS Item",
        .subCaption = "Change a family advocacy scheme item's settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Family Advocacy Scheme Item", {
                {.kind = Date, .control = "txtDate", .caption = "Date:*", .flags = Required, .member = "dDate"},
                {Text,    "txtLevelOfCourt",              "Type of Judge:", 0, SpellCheck},
                {Text,    "txtFDR",                       "Interim / FAM or FDR:", 0, SpellCheck},
                {Integer, "txtActualTimeSpent",           "Actual Time Spent (mins):"},
                {Integer, "txtHearingUnits",              "Hearing Units:"},
                {Decimal, "txtRateForUnits",              "Rate for Units:"},
                {Decimal, "txtBoltOnClaimed",             "% Bolt-on Claimed:"},
                {Text,    "txtBoltOnDescription",         "Bolt-on Description:", 35, SpellCheck},
                {Decimal, "txtCourtBundlePayment",        "Court Bundle Payment:"},
                {Decimal, "txtSettlementFee",             "Settlement Fee:"},
                {Decimal, "txtExceptionalTravel",         "Exceptional Travel:"},
                {Text,    "txtExceptionalTravelDistance", "Distance:", 0, SpellCheck},
                {Text,    "txtExceptionalTravelReason",   "Reason:", 35, SpellCheck},
                {Decimal, "txtVATForFAS",                 "VAT for FAS:"},
            }},
        },
        .rules = rules,
        .itemWord = "Family Advocacy Scheme Item",
        .add = []() -> clsXMLRecord * { return Form->AddFASItem().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
