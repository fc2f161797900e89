#include "shell/mdMainMenu.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"
#include "shell/frmMain.h"
#include "shell/mdMainEdit.h"

#include <QMenu>
#include <QMenuBar>

namespace {

struct clsMenuRow {
    const char *menu; ///< an ampersand marks the mnemonic, here and in the text
    const char *text;
    const char *member;
    const char *key; ///< empty for none
    void (frmMain::*action)();
    bool separatorAfter = false;
    Glyph glyph = Glyph::None;
};

// clang-format off
constexpr clsMenuRow MenuRows[] = {
    {"&File",    "&New",                          "mnuNew",                          "Ctrl+N", &frmMain::New,                          true, Glyph::NewDocument},
    {"&File",    "&Open",                         "mnuOpen",                         "Ctrl+O", &frmMain::Open,                         true, Glyph::Folder},
    {"&File",    "&Save",                         "mnuSave",                         "Ctrl+S", &frmMain::Save,                         false, Glyph::Disk},
    {"&File",    "Save &As...",                   "mnuSaveAs",                       "",       &frmMain::SaveAs,                       true},
    {"&File",    "&Export to Word",               "mnuExportToWord",                 "Ctrl+W", &frmMain::ExportToWord,                 true},
    {"&File",    "E&xit",                         "mnuExit",                         "Ctrl+Q", &frmMain::Exit,                         true},
    {"&File",    "New From &Claim...",            "mnuNewFromClaim",                 "",       &frmMain::NewFromClaim},
    {"&File",    "Export as &PDF...",             "mnuExportAsPdf",                  "",       &frmMain::ExportAsPdf},
    {"&File",    "&Folder of Claims...",          "mnuFolderOfClaims",               "",       &frmMain::FolderOfClaims, false, Glyph::Folder},
    {"&Tools",   "&Preferences",                  "mnuPreferences",                  "Ctrl+P", &frmMain::ShowPreferences,              true, Glyph::Sliders},
    {"&Tools",   "&Check For Blank Time / Values", "mnuCheckForBlankItems",          "",       &frmMain::CheckForBlank,                  true},
    {"&Tools",   "Chec&k Claim",                  "mnuCheckClaim",                   "Ctrl+K", &frmMain::CheckClaim},
    {"&Tools",   "Costs &Limit...",               "mnuCostsLimit",                   "",       &frmMain::CostsLimit},
    {"&Tools",   "&Firm and Team...",             "mnuFirmAndTeam",                  "",       &frmMain::FirmAndTeam},
    {"&Preview", "&Schedule of Time",             "mnuPreviewScheduleOfTime",        "Ctrl+T", &frmMain::PreviewScheduleOfTime},
    {"&Preview", "&Additional Information",       "mnuPreviewAdditionalInformation", "Ctrl+I", &frmMain::PreviewAdditionalInformation, true},
    {"&Preview", "&Form Pages",                   "mnuFormPages",                    "Ctrl+G", &frmMain::FormPages},
    {"&Preview", "Se&ctions",                     "mnuSectionList",                  "Ctrl+L", &frmMain::SectionList},
    {"&Preview", "&Why This Figure",              "mnuWhyThisFigure",                "",       &frmMain::WhyThisFigure},
    {"&Help",    "&User Guide",                   "mnuUserGuide",                    "",       &frmMain::UserGuide},
    {"&Help",    "&Keyboard Shortcuts List",      "mnuKeyboardShortcutsList",        "",       &frmMain::KeyboardShortcutsList,        true},
    {"&Help",    "&Make a Suggestion",            "mnuMakeASuggestion",              "",       &frmMain::MakeASuggestion,              true},
    {"&Help",    "&About Velmor ZR3",             "mnuAbout",                        "",       &frmMain::About},
};
// clang-format on

QMenu *menuOf(QMenuBar &bar, const char *caption)
{
    const QString text = QString::fromLatin1(caption);
    const QString name = QStringLiteral("mnu") + QString(text).remove(u'&');
    if (auto *existing = bar.findChild<QMenu *>(name))
        return existing;
    QMenu *menu = bar.addMenu(text);
    menu->setObjectName(name);
    return menu;
}

} // namespace

void mdBuildMainMenu(frmMain &window)
{
    for (const clsMenuRow &row : MenuRows) {
        QMenu *menu = menuOf(*window.menuBar(), row.menu);
        QAction *entry = menu->addAction(QString::fromLatin1(row.text));
        entry->setObjectName(QString::fromLatin1(row.member));
        entry->setShortcut(QKeySequence(QString::fromLatin1(row.key)));
        entry->setIcon(mdGlyphIcon(row.glyph, Theme::Ink2));
        QObject::connect(entry, &QAction::triggered, &window, row.action);
        if (row.separatorAfter)
            menu->addSeparator();
    }
    mdAddEditMenu(
        window, [&window] { window.ShowTurned(); }, [&window] { window.BringBack(); });
}
