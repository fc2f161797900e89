#include "editors/mdScreens.h"

#include "base/mdGetFolder.h"
#include "controls/clsSpellingChecker.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/oSpellingNote.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"

namespace {

void browse(const frmScreen &screen)
{
    auto &box = screen.Box<oAllPurposeBox>("txtAutoBackupPath");
    const QString folder = GetFolder(QStringLiteral("Please select a folder to backup to..."), box.Text());
    if (!folder.isEmpty())
        box.setText(folder);
}

void rules(frmScreen &screen)
{
    // The tick has no other effect: the path is stored and used for backups whether or not it is set.
    QObject::connect(&screen.Box<oCheckBox>("chkAutoBackup"), &oCheckBox::Click, &screen,
        [&screen](bool checked) { screen.Box("cmdAutoBackupPathBrowse").setEnabled(checked); });
    QObject::connect(&screen.Box<oCustomButton>("cmdAutoBackupPathBrowse"), &oCustomButton::Click, &screen,
        [&screen] { browse(screen); });
    // The only place that writes the preferences to disk, including the lists, which change at once.
    QObject::connect(&screen, &frmScreen::Stored, &screen, [] { Preferences->SaveXML(); });
}

QWidget *makeSpellingNote(const clsScreenRow &, QWidget *parent)
{
    return new oSpellingNote(SpellingChecker(), parent);
}

constexpr clsOtherControl SpellingNote {.make = makeSpellingNote};

const clsItemList &replacements()
{
    // clang-format off
    static const clsItemList list {
        .orderable = false,
        .columns = {
            {"Input Text",  "InputText",  25, clsGridAlignment::Left, true},
            {"Output Text", "OutputText", 75},
        },
        .show = [](oSGrid &grid) { grid.setItemCollection(Preferences->ReplacementsCollection()); },
        .empty = "No replacements yet. Add one to begin.",
        .editor = ScreenReplacementEdit,
        .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Preferences->Replacement(index); },
        .remove = [](int index) { Preferences->DeleteReplacement(index); },
        .add = "cmdAddReplacement",
        .menu = "mnuReplacements",
        .deleteEntry = "mnuDeleteReplacement",
    };
    // clang-format on
    return list;
}

const clsItemList &rateSets()
{
    using enum clsGridAlignment;
    // clang-format off
    static const clsItemList list {
        .orderable = false,
        .columns = {
            {"Name",   "Name",                30},
            {"Hourly", "HourlyRate",          10, Right},
            {"Calls",  "CallsRate",           10, Right},
            {"LI",     "LettersInRate",       10, Right},
            {"LO",     "LettersOutRate",      10, Right},
            {"Adv",    "AdvocacyRate",        10, Right},
            {"Csl",    "CounselRate",         10, Right},
            {"T&W",    "TravelAndWaitingRate", 10, Right},
        },
        .show = [](oSGrid &grid) { grid.setItemCollection(Preferences->RateSetsCollection()); },
        .empty = "No rate sets yet. Add one to begin.",
        .editor = ScreenPreferencesRateSetEdit,
        .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Preferences->RateSet(index); },
        .remove = [](int index) { Preferences->DeleteRateSet(index); },
        .add = "cmdAddRateSet",
        .menu = "mnuRateSets",
        .deleteEntry = "mnuDeleteRateSet",
    };
    // clang-format on
    return list;
}

} // namespace

/// Settings for all claims. Nothing is checked: an empty rate is stored as such.
const clsScreen &ScreenPreferences()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmPreferences",
        .header = "Preferences",
        .subCaption = "Default settings",
        .iconGroup = 12,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .record = []() -> clsXMLRecord * { return Preferences.get(); },
        .frames = {
            {.name = "bxPreferences", .caption = "", .switcher = "oPreferencesSwitcher", .pages = {
                {"General Settings", {
                    {Decimal, "txtDefaultVATRate",       "Default VAT Rate:*"},
                    {Tick,    "chkAutoBackup",           "Auto Backup:"},
                    {Text,    "txtAutoBackupPath",       "Auto Backup Path:", 0, NoReplacements},
                    {Button,  "cmdAutoBackupPathBrowse", "Browse...", 0, StartsDisabled | SameRow},
                    {Tick,    "chkAutoDeleteBackups",    "Auto-delete Backups:"},
                    {Tick,    "chkAutoRefreshPreview",   "Auto-refresh Preview:"},
                    {Tick,    "chkPlaySound",            "Play Sound:"},
                    {Tick,    "chkLog",                  "Log Mode:"},
                    {.kind = Other, .control = "lblSpelling", .flags = NoCaption | Unbound, .other = &SpellingNote},
                }},
                {"Replacements", {
                    {.kind = Items, .control = "sgReplacements", .caption = "Replacements",
                     .items = &replacements()},
                }},
                {"Rate Sets", {
                    {.kind = Items, .control = "sgRateSets", .caption = "Rate Sets",
                     .items = &rateSets()},
                }},
            }},
        },
        .rules = rules,
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
