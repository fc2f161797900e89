#include "editors/mdScreens.h"

#include "controls/oCheckBox.h"
#include "controls/oDecimalBox.h"
#include "editors/frmScreen.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QComboBox>

namespace {

QStringList formTypes()
{
    return {QStringLiteral("Claim1"), QStringLiteral("Claim1A")};
}

/// Claim1 has ten pages. The ticks of the other pages keep their state while disabled, and are stored.
void formTypeChanged(const frmScreen &screen)
{
    const QString type = screen.Box<QComboBox>("cmbFormType").currentText();
    if (type != QLatin1String("Claim1") && type != QLatin1String("Claim1A"))
        return;
    for (const char *page : {"chkIncludePage11", "chkIncludePage12", "chkIncludePage13"})
        screen.Box(page).setEnabled(type == QLatin1String("Claim1A"));
}

void rules(frmScreen &screen)
{
    QObject::connect(&screen.Box<QComboBox>("cmbFormType"), &QComboBox::currentIndexChanged, &screen,
        [&screen] { formTypeChanged(screen); });
    formTypeChanged(screen);
    // The rate keeps its text while disabled: the totals still use it.
    QObject::connect(&screen.Box<oCheckBox>("chkVAT"), &oCheckBox::Click, &screen,
        [&screen](bool checked) { screen.Box("txtVATRate").setEnabled(checked); });
    // Every export includes the first page, whatever the file says.
    QObject::connect(
        &screen, &frmScreen::Loaded, &screen, [&screen] { screen.Box<oCheckBox>("chkIncludePage1").setChecked(true); });
}

} // namespace

/// The kind of claim: the form, VAT, the ticks of its first page, the pages to export, and the user's notes. The record
/// is the claim itself, and the only button stores.
const clsScreen &ScreenFormSetup()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmFormSetup",
        .header = "Form Setup",
        .subCaption = "Define the form type and preferences",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::Close,
        .record = []() -> clsXMLRecord * { return Form.get(); },
        .frames = {
            {"bxGeneral", "General", {
                {.kind = List, .control = "cmbFormType", .caption = "Form Type:", .entries = formTypes},
                {Tick,    "chkVAT",                           "VAT:"},
                {.kind = Decimal, .control = "txtVATRate", .caption = "%", .flags = StartsDisabled | SameRow | NoteBeneath,
                 .spoken = "VAT rate in per cent"},
                {Tick,    "chkIncludePanelMembershipContSheet", "Include Panel Membership Cont. Sheet:"},
            }},
            {"bxHeaders", "Form Header", {
                {Tick,    "chkCostsAssessedByLSC",            "Claim for costs to be assessed by the LAA:"},
                {Tick,    "chkCostsAssessedByCourt",          "Claim for costs assessed by the Court:"},
                {Tick,    "chkExceptionalCaseFunding",        "Exceptional Case Funding determination:"},
                {Tick,    "chkMentalHealth",                  "Mental Health/Court of Protection:"},
                {Tick,    "chkVHCC",                          "VHCC/HCC:"},
                {Text,    "txtStageNumber",                   "Stage Number:", 40},
                {Text,    "txtTypeOfCase",                    "Type of Case:", 40},
            }},
            {.name = "bgPages", .caption = "Pages", .rows = {
                {.kind = Tick, .control = "chkIncludePage1",  .caption = "1:",  .flags = StartsDisabled,
                 .spoken = "Page 1"},
                {.kind = Tick, .control = "chkIncludePage2",  .caption = "2:",  .spoken = "Page 2"},
                {.kind = Tick, .control = "chkIncludePage3",  .caption = "3:",  .spoken = "Page 3"},
                {.kind = Tick, .control = "chkIncludePage4",  .caption = "4:",  .spoken = "Page 4"},
                {.kind = Tick, .control = "chkIncludePage5",  .caption = "5:",  .spoken = "Page 5"},
                {.kind = Tick, .control = "chkIncludePage6",  .caption = "6:",  .spoken = "Page 6"},
                {.kind = Tick, .control = "chkIncludePage7",  .caption = "7:",  .spoken = "Page 7"},
                {.kind = Tick, .control = "chkIncludePage8",  .caption = "8:",  .spoken = "Page 8"},
                {.kind = Tick, .control = "chkIncludePage9",  .caption = "9:",  .spoken = "Page 9"},
                {.kind = Tick, .control = "chkIncludePage10", .caption = "10:", .spoken = "Page 10"},
                {.kind = Tick, .control = "chkIncludePage11", .caption = "11:", .spoken = "Page 11"},
                {.kind = Tick, .control = "chkIncludePage12", .caption = "12:", .spoken = "Page 12"},
                {.kind = Tick, .control = "chkIncludePage13", .caption = "13:", .spoken = "Page 13"},
            }, .startsColumn = true, .tickColumns = 5},
            {"bxNotes", "Notes", {
                {Text,    "txtNotes", "Notes", 0, MultiLine | SpellCheck | NoCaption},
            }},
        },
        .rules = rules,
    };
    // clang-format on
    return screen;
}
