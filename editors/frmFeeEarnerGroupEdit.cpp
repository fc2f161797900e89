#include "editors/mdScreens.h"

#include "controls/mdTheme.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "controls/oTypeAheadBox.h"
#include "editors/frmScreen.h"
#include "editors/mdEditedForm.h"
#include "editors/mdLoadMenuFromCollection.h"
#include "editors/mdPeopleLists.h"
#include "editors/mdRateRows.h"
#include "editors/mdScreenControls.h"
#include "editors/mdShowPreferences.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdInOrder.h"

#include <QAction>
#include <QMenu>

namespace {

constexpr int RateSetsPage = 3;

/// Suggests the names of the claim's groups, so that groups of the same grade get the same name.
QWidget *makeName(const clsScreenRow &, QWidget *parent)
{
    auto *box = new oTypeAheadBox(parent);
    QStringList names;
    for (const auto &group : mdInOrder(mdEditedForm().FeeEarnerGroupsCollection()))
        names << group->Name();
    box->setSuggestions(names);
    return box;
}

void loadName(const clsScreenRow &, QWidget &control, clsXMLRecord &record)
{
    static_cast<oTypeAheadBox &>(control).setText(static_cast<clsZR3FeeEarnerGroup &>(record).Name());
}

void storeName(const clsScreenRow &, const QWidget &control, clsXMLRecord &record)
{
    static_cast<clsZR3FeeEarnerGroup &>(record).Name = static_cast<const oTypeAheadBox &>(control).Text();
}

constexpr clsOtherControl Name {makeName, loadName, storeName};

/// Without an enhancement, its rate and the one for communications don't apply.
void enhanceChanged(const frmScreen &screen, bool enhance)
{
    auto &rate = screen.Box<oDecimalBox>("txtEnhancementRate");
    auto &communications = screen.Box<oCheckBox>("chkEnhanceComms");
    rate.setEnabled(enhance);
    communications.setEnabled(enhance);
    if (enhance)
        return;
    rate.setText(QStringLiteral("0"));
    communications.setChecked(false);
}

/// Copies the rates of a rate set to the boxes with their names; the group itself doesn't change.
void loadRateSet(const frmScreen &screen, const clsZR3RateSet &rateSet)
{
    for (const clsScreenField &field : screen.Fields())
        if (auto *box = qobject_cast<oDecimalBox *>(field.control))
            if (const clsXMLField *rate = rateSet.field(mdMemberOf(*field.row)))
                box->setText(rate->readText());
}

/// The menu is filled whenever it opens, so that it shows the current rate sets.
void makeRateSetMenu(frmScreen &screen)
{
    auto *menu = new QMenu(&screen);
    menu->setObjectName(QStringLiteral("mnuRateSets"));
    QObject::connect(menu, &QMenu::aboutToShow, menu,
        [menu] { mdLoadMenuFromCollection(*menu, Preferences->RateSetsCollection(), u"Name"); });
    QObject::connect(menu, &QMenu::triggered, &screen,
        [&screen](const QAction *entry) { loadRateSet(screen, *Preferences->RateSet(entry->data().toInt())); });
    auto &load = screen.Box<oCustomButton>("cmdLoad");
    QObject::connect(&load, &oCustomButton::Click, menu, [menu, &load] {
        // If the letter is pressed while the button is scrolled out of view, the focus scrolls to it.
        load.clearFocus();
        load.setFocus(Qt::ShortcutFocusReason);
        menu->popup(load.mapToGlobal(QPoint(Theme::RingRoom, load.height())));
    });
}

void rules(frmScreen &screen)
{
    QObject::connect(&screen.Box<oCheckBox>("chkEnhance"), &oCheckBox::Click, &screen,
        [&screen](bool enhance) { enhanceChanged(screen, enhance); });
    makeRateSetMenu(screen);
    QObject::connect(&screen.Box<oCustomButton>("cmdEditRateSets"), &oCustomButton::Click, &screen,
        [&screen] { mdShowPreferences(&screen, RateSetsPage); });
}

} // namespace

/// A group of fee earners: its name, the enhancement of all its work, and the seven rates, which can be copied from a
/// rate set of the preferences.
clsScreen mdGroupEditor(const char *name)
{
    using enum clsRowKind;
    // clang-format off
    return {
        .name = name,
        .header = "Fee Earner Group",
        .subCaption = "Change settings for a fee earner group",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Group Setup", {
                {Text,    "txtReference",       "Reference:*", 0, Required},
                {.kind = Other, .control = "txtName", .caption = "Name:*", .flags = Required, .other = &Name},
                {Tick,    "chkEnhance",         "Enhance:"},
                {.kind = Decimal, .control = "txtEnhancementRate", .caption = "%", .flags = StartsDisabled | SameRow | NoteBeneath,
                 .spoken = "Enhancement rate in per cent"},
                {Tick,    "chkEnhanceComms",    "Enhance Communications:", 0, StartsDisabled},
            }},
            {"bxRates", "Rates", mdJoinedRows({mdRateRows(), {
                {Button,  "cmdLoad",            "Load"},
                {Button,  "cmdEditRateSets",    "Edit Rate Sets", 0, SameRow},
            }})},
        },
        .rules = rules,
        .itemWord = "Fee Earner Group",
        .add = []() -> clsXMLRecord * { return mdEditedForm().AddFeeEarnerGroup().get(); },
        .fileMenu = false,
    };
    // clang-format on
}

const clsScreen &ScreenFeeEarnerGroupEdit()
{
    static const clsScreen screen = mdGroupEditor("frmFeeEarnerGroupEdit");
    return screen;
}
