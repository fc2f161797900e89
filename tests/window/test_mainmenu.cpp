#include "tests/window/clsMainWindowTest.h"

#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTimer>

namespace {

using MainMenu = clsMainWindowTest;

struct clsEntry {
    const char *menu;
    const char *text;
    const char *member;
    const char *key;
    bool separatorAfter;
};

// clang-format off
const clsEntry Entries[] = {
    {"File",    "New",                           "mnuNew",                          "Ctrl+N", true},
    {"File",    "Open",                          "mnuOpen",                         "Ctrl+O", true},
    {"File",    "Save",                          "mnuSave",                         "Ctrl+S", false},
    {"File",    "Save As...",                    "mnuSaveAs",                       "",       true},
    {"File",    "Export to Word",                "mnuExportToWord",                 "Ctrl+W", true},
    {"File",    "Exit",                          "mnuExit",                         "Ctrl+Q", true},
    {"File",    "New From Claim...",             "mnuNewFromClaim",                 "",       false},
    {"File",    "Export as PDF...",              "mnuExportAsPdf",                  "",       false},
    {"File",    "Folder of Claims...",           "mnuFolderOfClaims",               "",       false},
    {"Edit",    "Undo",                          "mnuUndo",                         "Ctrl+Z", false},
    {"Edit",    "Redo",                          "mnuRedo",                         "Ctrl+Shift+Z", true},
    {"Edit",    "Paste Items...",                "mnuPasteItems",                   "Ctrl+Shift+V", false},
    {"Edit",    "Import Items...",               "mnuImportItems",                  "",       false},
    {"Edit",    "Copy List",                     "mnuCopyList",                     "Ctrl+Shift+C", false},
    {"Edit",    "Bring Back",                    "mnuBringBack",                    "",       false},
    {"Tools",   "Preferences",                   "mnuPreferences",                  "Ctrl+P", true},
    {"Tools",   "Check For Blank Time / Values", "mnuCheckForBlankItems",           "",       true},
    {"Tools",   "Check Claim",                   "mnuCheckClaim",                   "Ctrl+K", false},
    {"Tools",   "Costs Limit...",                "mnuCostsLimit",                   "",       false},
    {"Tools",   "Firm and Team...",              "mnuFirmAndTeam",                  "",       false},
    {"Preview", "Schedule of Time",              "mnuPreviewScheduleOfTime",        "Ctrl+T", false},
    {"Preview", "Additional Information",        "mnuPreviewAdditionalInformation", "Ctrl+I", true},
    {"Preview", "Form Pages",                    "mnuFormPages",                    "Ctrl+G", false},
    {"Preview", "Sections",                      "mnuSectionList",                  "Ctrl+L", false},
    {"Preview", "Why This Figure",               "mnuWhyThisFigure",                "",       false},
    {"Help",    "User Guide",                    "mnuUserGuide",                    "",       false},
    {"Help",    "Keyboard Shortcuts List",       "mnuKeyboardShortcutsList",        "",       true},
    {"Help",    "Make a Suggestion",             "mnuMakeASuggestion",              "",       true},
    {"Help",    "About Velmor ZR3",              "mnuAbout",                        "",       false},
};
// clang-format on

QString plain(const QString &text)
{
    return QString(text).remove(u'&');
}

QChar mnemonic(const QString &text)
{
    const qsizetype mark = text.indexOf(u'&');
    return mark < 0 ? QChar() : text[mark + 1].toUpper();
}

} // namespace

TEST_F(MainMenu, HasTheEntriesAndKeysInTheirOrder)
{
    start();
    QStringList expected, found;
    for (const clsEntry &row : Entries) {
        expected << QStringLiteral("%1 > %2 | %3 | %4")
                        .arg(QLatin1String(row.menu), QLatin1String(row.text), QLatin1String(row.member),
                            QLatin1String(row.key));
        if (row.separatorAfter)
            expected << QStringLiteral("-");
    }
    for (const QAction *menu : window->menuBar()->actions())
        for (const QAction *entry : menu->menu()->actions())
            found << (entry->isSeparator() ? QStringLiteral("-")
                                           : QStringLiteral("%1 > %2 | %3 | %4")
                                                 .arg(plain(menu->text()), plain(entry->text()), entry->objectName(),
                                                     entry->shortcut().toString(QKeySequence::PortableText)));
    EXPECT_EQ(expected, found);
    EXPECT_EQ(QStringLiteral("mnuPreview"), window->menuBar()->actions()[3]->menu()->objectName());
}

TEST_F(MainMenu, EachMenuHasLettersOfItsOwn)
{
    start();
    QSet<QChar> menus;
    for (const QAction *menu : window->menuBar()->actions()) {
        EXPECT_FALSE(mnemonic(menu->text()).isNull());
        menus << mnemonic(menu->text());
        QSet<QChar> entries;
        int count = 0;
        for (const QAction *entry : menu->menu()->actions())
            if (!entry->isSeparator()) {
                EXPECT_FALSE(mnemonic(entry->text()).isNull()) << qPrintable(entry->text());
                entries << mnemonic(entry->text());
                ++count;
            }
        EXPECT_EQ(count, entries.size()) << qPrintable(menu->text());
    }
    EXPECT_EQ(window->menuBar()->actions().size(), menus.size());
    EXPECT_TRUE(menus.contains(u'F'));
}

TEST_F(MainMenu, HelpOpensWhatLiesBesideTheProgram)
{
    start();
    for (const char *name : {"mnuUserGuide", "mnuKeyboardShortcutsList", "mnuMakeASuggestion"})
        entry(name).trigger();
    EXPECT_EQ(QStringList({path("program/Documentation/Velmor ZR3 User Guide.pdf"),
                  path("program/Documentation/Velmor ZR3 Keyboard Shortcuts.pdf"),
                  GetResourceData(QStringLiteral("ciSuggestionURL"), QStringLiteral("COMPANYINFO"))}),
        user.opened);
}

TEST_F(MainMenu, ChecksForBlankItems)
{
    start();
    entry("mnuCheckForBlankItems").trigger();
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Blank Items"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("No blank items found"), user.messages[0].text);
}

TEST_F(MainMenu, WithoutAWordThereIsNoExport)
{
    start();
    window->wordInstalled = [] { return false; };
    entry("mnuExportToWord").trigger();
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Word Error"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Velmor ZR3 could not detect Microsoft Word. Please install Microsoft Word onto your "
                             "computer and try again."),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
}

namespace {

/// The name of the modal window that an entry opens; closes it again.
QString modalOf(QAction &entry)
{
    QString name;
    QTimer::singleShot(0, [&name] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            name = modal->objectName();
            modal->close();
        }
    });
    entry.trigger();
    return name;
}

} // namespace

TEST_F(MainMenu, OpensTheExportAndTheAboutBox)
{
    start();
    EXPECT_EQ(QStringLiteral("frmExportToWord"), modalOf(entry("mnuExportToWord")));
    EXPECT_EQ(QStringLiteral("frmAbout"), modalOf(entry("mnuAbout")));
    EXPECT_TRUE(user.messages.empty());
}
