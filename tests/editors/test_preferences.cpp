#include "base/mdClock.h"
#include "controls/clsSpellingChecker.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "editors/oFieldLabel.h"
#include "editors/oSpellingNote.h"
#include "tests/editors/clsPreferencesScreenTest.h"

#include <cerrno>

// The preferences' screen: its general settings, and closing it.

using PreferencesScreen = clsPreferencesScreenTest;

// Content

TEST_F(PreferencesScreen, HasThreePagesAndOneButton)
{
    const auto screen = preferences();
    EXPECT_EQ(QStringLiteral("frmPreferences"), screen->objectName());
    EXPECT_EQ(QStringLiteral("Preferences"), screen->findChild<oHeaderBar *>()->Caption());
    EXPECT_EQ(QStringLiteral("Default settings"), screen->findChild<oHeaderBar *>()->SubCaption());
    const auto *switcher = screen->findChild<oContentSwitcher *>(QStringLiteral("oPreferencesSwitcher"));
    ASSERT_TRUE(switcher);
    QStringList pages;
    for (const oFrame *frame : switcher->findChildren<oFrame *>(QString(), Qt::FindDirectChildrenOnly))
        pages << frame->Caption();
    EXPECT_EQ(
        QStringList({QStringLiteral("General Settings"), QStringLiteral("Replacements"), QStringLiteral("Rate Sets")}),
        pages);
    EXPECT_EQ(GeneralSettings, switcher->OpenPage());
    EXPECT_EQ(QStringLiteral("Close"), screen->findChild<oCustomButton *>(QStringLiteral("cmdClose"))->Caption());
    for (const char *missing : {"cmdSave", "cmdCancel"})
        EXPECT_FALSE(screen->findChild<oCustomButton *>(QString::fromUtf8(missing)));
    EXPECT_EQ(QStringLiteral("txtDefaultVATRate"), focusedName(*screen));
}

TEST_F(PreferencesScreen, TheGeneralSettingsAreInTheirOrder)
{
    struct clsSetting {
        const char *control;
        const char *caption;
    };
    // clang-format off
    const clsSetting expected[] = {
        {"txtDefaultVATRate",       "Default VAT Rate:*"},
        {"chkAutoBackup",           "Auto Backup:"},
        {"txtAutoBackupPath",       "Auto Backup Path:"},
        {"cmdAutoBackupPathBrowse", "Browse..."},
        {"chkAutoDeleteBackups",    "Auto-delete Backups:"},
        {"chkAutoRefreshPreview",   "Auto-refresh Preview:"},
        {"chkPlaySound",            "Play Sound:"},
        {"chkLog",                  "Log Mode:"},
    };
    // clang-format on
    const auto screen = preferences();
    ASSERT_LE(std::size(expected), screen->Fields().size());
    for (size_t i = 0; i < std::size(expected); ++i) {
        const clsScreenField &field = screen->Fields()[i];
        EXPECT_EQ(QString::fromUtf8(expected[i].control), field.control->objectName());
        const auto *button = qobject_cast<oCustomButton *>(field.control);
        EXPECT_EQ(QString::fromUtf8(expected[i].caption), button ? button->Caption() : field.label->Caption());
    }
    EXPECT_TRUE(qobject_cast<oDecimalBox *>(&screen->Box("txtDefaultVATRate")));
}

TEST_F(PreferencesScreen, CopiesThePreferencesToItsControls)
{
    for (const bool on : {true, false}) {
        Preferences->DefaultVATRate = QStringLiteral("20.00");
        Preferences->AutoBackup = on;
        Preferences->AutoBackupPath = QStringLiteral("/backups & more");
        Preferences->AutoDeleteBackups = !on;
        Preferences->AutoRefreshPreview = on;
        Preferences->PlaySound = !on;
        Preferences->Log = false;
        const auto screen = preferences();
        EXPECT_EQ(QStringLiteral("20.00"), text(*screen, "txtDefaultVATRate"));
        EXPECT_EQ(on, tick(*screen, "chkAutoBackup").Checked());
        EXPECT_EQ(QStringLiteral("/backups & more"), text(*screen, "txtAutoBackupPath"));
        EXPECT_EQ(!on, tick(*screen, "chkAutoDeleteBackups").Checked());
        EXPECT_EQ(on, tick(*screen, "chkAutoRefreshPreview").Checked());
        EXPECT_EQ(!on, tick(*screen, "chkPlaySound").Checked());
        EXPECT_FALSE(tick(*screen, "chkLog").Checked());
        EXPECT_EQ(on, browses(*screen));
    }
}

// Closing

TEST_F(PreferencesScreen, CloseStoresTheSevenAndWritesTheFile)
{
    const auto screen = preferences();
    type(screen->Box("txtDefaultVATRate"), QStringLiteral("20"));
    type(screen->Box("txtAutoBackupPath"), QStringLiteral("/some where"));
    for (const char *name : {"chkAutoBackup", "chkAutoDeleteBackups", "chkAutoRefreshPreview", "chkPlaySound"})
        click(*screen, name);
    EXPECT_EQ(QStringLiteral("17.50"), Preferences->DefaultVATRate()) << "nothing is stored before the close";
    EXPECT_FALSE(Preferences->AutoBackup());
    press(*screen, "cmdClose");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("20.00"), Preferences->DefaultVATRate());
    EXPECT_TRUE(Preferences->AutoBackup());
    EXPECT_EQ(QStringLiteral("/some where"), Preferences->AutoBackupPath());
    EXPECT_TRUE(Preferences->AutoDeleteBackups());
    EXPECT_TRUE(Preferences->AutoRefreshPreview());
    EXPECT_FALSE(Preferences->PlaySound());
    EXPECT_FALSE(Preferences->Log());
    const QByteArray written = file();
    for (const char *element : {"<defaultvatrate>20%2E00</defaultvatrate>", "<autobackup>True</autobackup>",
             "<autobackuppath>%2Fsome+where</autobackuppath>", "<autodeletebackups>True</autodeletebackups>",
             "<autorefreshpreview>True</autorefreshpreview>", "<playsound>False</playsound>", "<log>False</log>"})
        EXPECT_TRUE(written.contains(element)) << element << " in " << written.constData();
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PreferencesScreen, TheSevenAreStoredInTheirOrder)
{
    expectStoredInOrder({"defaultvatrate", "autobackup", "autobackuppath", "autodeletebackups", "autorefreshpreview",
                            "playsound", "log"},
        [] {
            Preferences = std::make_unique<clsZR3PreferencesDatabase>();
            return preferences();
        });
}

TEST_F(PreferencesScreen, TheFileIsWrittenOnceAndGuarded)
{
    const auto screen = preferences();
    QStringList opened;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &of) {
        if (step == clsFileStep::OpenToWrite || step == clsFileStep::Truncate || step == clsFileStep::Delete)
            opened << QString::number(int(step)) + QDir(path("program/Databases")).relativeFilePath(of);
        return clsFileFault();
    };
    press(*screen, "cmdClose");
    FileSystem().faultPoint = nullptr;
    const QString side = QStringLiteral("Preferences Database.vzpa");
    ASSERT_FALSE(opened.isEmpty());
    EXPECT_TRUE(opened.first().endsWith(side)) << "the old content first goes into the side file";
    EXPECT_EQ(QString::number(int(clsFileStep::Delete)) + side, opened.last());
    EXPECT_EQ(QStringList(QStringLiteral("Preferences Database.vzp")),
        QDir(path("program/Databases")).entryList(QDir::Files));
}

TEST_F(PreferencesScreen, EscClosesAndStoresAndTheCloseBoxDoesNot)
{
    auto screen = preferences();
    const QByteArray before = file();
    click(*screen, "chkAutoRefreshPreview");
    addReplacement("ab", "above");
    screen->close();
    EXPECT_FALSE(Preferences->AutoRefreshPreview());
    EXPECT_EQ(before, file());
    EXPECT_EQ(QStringList("ab>above"), replacements()) << "a list is changed at once, on the disk or not";
    screen = preferences();
    click(*screen, "chkAutoRefreshPreview");
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(Preferences->AutoRefreshPreview());
    EXPECT_TRUE(file().contains("<inputtext>ab</inputtext>"));
}

TEST_F(PreferencesScreen, AnEmptyRateIsStoredAsSuch)
{
    Preferences->DefaultVATRate = QString();
    const auto screen = preferences(Replacements);
    press(*screen, "cmdClose");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QString(), Preferences->DefaultVATRate());
    EXPECT_TRUE(file().contains("<defaultvatrate/>") || file().contains("<defaultvatrate></defaultvatrate>"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PreferencesScreen, ARateThatIsNoNumberHoldsTheUser)
{
    const auto screen = preferences();
    type(screen->Box("txtDefaultVATRate"), QStringLiteral("abc"));
    press(*screen, "cmdClose");
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("17.50"), Preferences->DefaultVATRate());
}

TEST_F(PreferencesScreen, AFileThatCanNotBeWrittenIsToldOnceAndNothingIsLost)
{
    const auto screen = preferences();
    const QByteArray before = file();
    type(screen->Box("txtDefaultVATRate"), QStringLiteral("20"));
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        // As in a read-only folder.
        const bool refused = step == clsFileStep::OpenToWrite || step == clsFileStep::Delete;
        return refused ? clsFileFault {.systemError = EACCES} : clsFileFault();
    };
    press(*screen, "cmdClose");
    FileSystem().faultPoint = nullptr;
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("There was a problem writing to the following path:\r\n\r\n") + path(File)
            + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n70 - Permission denied"),
        user.messages[0].text);
    EXPECT_TRUE(user.messages[0].system);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(before, file());
    EXPECT_EQ(QStringLiteral("20.00"), Preferences->DefaultVATRate()) << "they hold until the end of the program";
    // Written to the disk by the next close.
    press(*preferences(), "cmdClose");
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_TRUE(file().contains("20%2E00"));
}

// The backup path

TEST_F(PreferencesScreen, ClosingWithAutoBackupOffKeepsThePathAsTyped)
{
    Preferences->AutoBackup = true;
    const auto screen = preferences();
    type(screen->Box("txtAutoBackupPath"), QStringLiteral("/backups"));
    click(*screen, "chkAutoBackup");
    EXPECT_FALSE(browses(*screen));
    EXPECT_TRUE(screen->Box("txtAutoBackupPath").isEnabled());
    EXPECT_EQ(QStringLiteral("/backups"), text(*screen, "txtAutoBackupPath"));
    press(*screen, "cmdClose");
    EXPECT_FALSE(Preferences->AutoBackup());
    EXPECT_EQ(QStringLiteral("/backups"), Preferences->AutoBackupPath());
}

TEST_F(PreferencesScreen, AutoBackupEnablesTheBrowseButtonAndNothingElse)
{
    const auto screen = preferences();
    EXPECT_FALSE(browses(*screen));
    EXPECT_TRUE(screen->Box("txtAutoBackupPath").isEnabled());
    click(*screen, "chkAutoBackup");
    EXPECT_TRUE(browses(*screen));
    click(*screen, "chkAutoBackup");
    EXPECT_FALSE(browses(*screen));
}

TEST_F(PreferencesScreen, BrowsePutsTheFolderIntoTheBoxAndItsCancelLeavesIt)
{
    Preferences->AutoBackup = true;
    Preferences->AutoBackupPath = QStringLiteral("/old");
    const auto screen = preferences();
    press(*screen, "cmdAutoBackupPathBrowse");
    EXPECT_EQ(QStringList(QStringLiteral("Please select a folder to backup to...")), user.prompts);
    EXPECT_EQ(QStringList(QStringLiteral("/old")), user.starts) << "the folder in the box";
    EXPECT_EQ(QStringLiteral("/old"), text(*screen, "txtAutoBackupPath"));
    user.folders = {QStringLiteral("/new folder")};
    press(*screen, "cmdAutoBackupPathBrowse");
    EXPECT_EQ(QStringLiteral("/new folder"), text(*screen, "txtAutoBackupPath"));
    EXPECT_EQ(QStringLiteral("/old"), Preferences->AutoBackupPath());
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("/new folder"), Preferences->AutoBackupPath());
}

TEST_F(PreferencesScreen, APathIsNotExpanded)
{
    addReplacement("ab", "above");
    const auto screen = preferences();
    type(screen->Box("txtAutoBackupPath"), QStringLiteral("/my ab "));
    EXPECT_EQ(QStringLiteral("/my ab "), text(*screen, "txtAutoBackupPath"));
}

// The log

TEST_F(PreferencesScreen, TellsTheLogOfItsOpeningAndOfTheFolderChooser)
{
    SetClock([] { return QDateTime(QDate(2026, 11, 15), QTime(14, 3, 22)); });
    put("program/Logs/15-11-2026.txt", "");
    Preferences->Log = true;
    Preferences->AutoBackup = true;
    const auto screen = preferences();
    press(*screen, "cmdAutoBackupPathBrowse");
    EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : frmPreferences Opened\r\n"
                         "15/11/2026 14:03:22 : Begin Get Folder\r\n"
                         "15/11/2026 14:03:22 : End Get Folder\r\n"),
        bytesOf(path("program/Logs/15-11-2026.txt")));
    Preferences->Log = false;
    SetClock(nullptr);
}

TEST_F(PreferencesScreen, TheLogIsSwitchedByTheClose)
{
    SetClock([] { return QDateTime(QDate(2026, 11, 15), QTime(14, 3, 22)); });
    const char *log = "program/Logs/15-11-2026.txt";
    put(log, "");
    auto screen = preferences();
    click(*screen, "chkLog");
    EXPECT_EQ(QByteArray(), bytesOf(path(log)));
    press(*screen, "cmdClose");
    const QByteArray first = bytesOf(path(log));
    EXPECT_TRUE(first.contains("Begin Write Text Document")) << "the writing itself is logged already";
    screen = preferences();
    click(*screen, "chkLog");
    press(*screen, "cmdClose");
    EXPECT_EQ(first + "15/11/2026 14:03:22 : frmPreferences Opened\r\n", bytesOf(path(log)));
    SetClock(nullptr);
}

// The note on the spelling

TEST_F(PreferencesScreen, ANoteSaysWhyWordsAreNotChecked)
{
    clsSpellingChecker checker({{path("no dictionaries")}, path("words.txt")});
    oSpellingNote note(checker, nullptr);
    EXPECT_EQ(QStringLiteral("Spelling is not checked: no British dictionary is installed."), note.text());
    note.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&note));
    const int oneLine = note.sizeHint().height();
    EXPECT_EQ(oneLine, note.heightForWidth(note.sizeHint().width()));
    // It wraps if there is not enough room.
    EXPECT_LT(note.minimumSizeHint().width(), note.sizeHint().width() / 2);
    EXPECT_GE(note.heightForWidth(note.sizeHint().width() / 2), 2 * oneLine);
}

TEST_F(PreferencesScreen, WithADictionaryThereIsNoNote)
{
    put("en_GB.aff", "SET UTF-8\n");
    put("en_GB.dic", "1\nword\n");
    clsSpellingChecker checker({{folder.path()}, path("words.txt")});
    ASSERT_TRUE(checker.IsAvailable());
    QWidget page;
    const oSpellingNote note(checker, &page);
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
    EXPECT_FALSE(note.isVisible());
    EXPECT_EQ(QString(), note.text());
}

TEST_F(PreferencesScreen, TheNoteIsThatOfTheProgramsOwnDictionary)
{
    const auto screen = preferences();
    EXPECT_EQ(!SpellingChecker().IsAvailable(), screen->Box("lblSpelling").isVisible());
    EXPECT_TRUE(qobject_cast<oSpellingNote *>(&screen->Box("lblSpelling")));
}
