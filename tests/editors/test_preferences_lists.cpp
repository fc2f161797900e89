#include "controls/oAllPurposeBox.h"
#include "controls/oCustomButton.h"
#include "editors/mdShowPreferences.h"
#include "tests/editors/clsPreferencesScreenTest.h"

#include <QMenu>

// The preferences' screen: its two lists, and the places from which it is opened.

using PreferencesLists = clsPreferencesScreenTest;

// The lists

TEST_F(PreferencesLists, TheGridsShowTheCollections)
{
    addReplacement("zz", "last");
    addReplacement("ab", "above");
    addReplacement("mm", "middle");
    const auto set = addRateSet("Outer London", "63.00");
    set->CallsRate = QStringLiteral("1.00");
    set->LettersInRate = QStringLiteral("2.00");
    set->LettersOutRate = QStringLiteral("3.00");
    set->AdvocacyRate = QStringLiteral("4.00");
    set->CounselRate = QStringLiteral("5.00");
    set->TravelAndWaitingRate = QStringLiteral("6.00");
    addRateSet("Inner London", "70.00");
    const auto screen = preferences();
    EXPECT_EQ(QStringList({QStringLiteral("ab|above"), QStringLiteral("mm|middle"), QStringLiteral("zz|last")}),
        rows(*screen, "sgReplacements"))
        << "sorted by the abbreviation";
    EXPECT_EQ(QStringList({QStringLiteral("Outer London|63.00|1.00|2.00|3.00|4.00|5.00|6.00"),
                  QStringLiteral("Inner London|70.00|0.00|0.00|0.00|0.00|0.00|0.00")}),
        rows(*screen, "sgRateSets"))
        << "in the order in which they were made";
    const auto headings = [&](const char *name) {
        QStringList texts;
        const QAbstractItemModel &model = *view(*screen, name).model();
        for (int column = 0; column < model.columnCount(); ++column)
            texts << model.headerData(column, Qt::Horizontal).toString();
        return texts.join(u'|');
    };
    EXPECT_EQ(QStringLiteral("Input Text|Output Text"), headings("sgReplacements"));
    EXPECT_EQ(QStringLiteral("Name|Hourly|Calls|LI|LO|Adv|Csl|T&W"), headings("sgRateSets"));
    for (const char *name : {"sgReplacements", "sgRateSets"})
        EXPECT_FALSE(grid(*screen, name).Orderable());
    EXPECT_EQ(QStringLiteral("mnuReplacements"), grid(*screen, "sgReplacements").PopupMenuName());
    EXPECT_EQ(QStringLiteral("mnuRateSets"), grid(*screen, "sgRateSets").PopupMenuName());
}

TEST_F(PreferencesLists, ReplacementsByKeyboardAlone)
{
    const auto screen = preferences(Replacements);
    EXPECT_EQ(QStringLiteral("sgReplacements"), focusedName(*screen));
    const auto add = [&](const char *input, const char *output) {
        onceOpened("frmReplacementEdit", [&](frmScreen &edit) {
            QTest::keyClicks(edit.focusWidget(), QString::fromUtf8(input));
            QTest::keyClick(edit.focusWidget(), Qt::Key_Tab);
            QTest::keyClicks(edit.focusWidget(), QString::fromUtf8(output));
            QTest::keyClick(edit.focusWidget(), Qt::Key_Return);
        });
        QTest::keyClick(screen->focusWidget(), Qt::Key_Insert);
    };
    add("zz", "last");
    add("mm", "middle");
    EXPECT_EQ(QStringList({QStringLiteral("mm|middle"), QStringLiteral("zz|last")}), rows(*screen, "sgReplacements"));
    add("ab", "above");
    EXPECT_EQ(QStringLiteral("sgReplacements"), focusedName(*screen));
    EXPECT_EQ(1, grid(*screen, "sgReplacements").SelectedRow()) << "the new one, which is the first of the sorted rows";
    EXPECT_EQ(3, grid(*screen, "sgReplacements").SelectedItemData());

    // The second row is the second item, the last row the first item.
    onceOpened("frmReplacementEdit", [&](frmScreen &edit) {
        EXPECT_EQ(QStringLiteral("mm"), text(edit, "txtInputText"));
        QTest::keyClick(edit.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(edit.focusWidget(), QStringLiteral("s"));
        QTest::keyClick(edit.focusWidget(), Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !edit.isVisible(); }));
    });
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QStringList({QStringLiteral("zz>last"), QStringLiteral("mm>middles"), QStringLiteral("ab>above")}),
        replacements());
    EXPECT_EQ(2, grid(*screen, "sgReplacements").SelectedRow());

    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    expectDeleteQuestion("Replacement");
    EXPECT_EQ(3u, Preferences->ReplacementsCollection().size()) << "No is no";
    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    expectDeleteQuestion("Replacement");
    EXPECT_EQ(QStringList({QStringLiteral("mm>middles"), QStringLiteral("ab>above")}), replacements());
    EXPECT_EQ(QStringList({QStringLiteral("ab|above"), QStringLiteral("mm|middles")}), rows(*screen, "sgReplacements"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(file().contains("<outputtext>middles</outputtext>"));
    EXPECT_FALSE(file().contains("last"));
}

TEST_F(PreferencesLists, RateSetsByKeyboardAlone)
{
    const auto screen = preferences(RateSets);
    EXPECT_EQ(QStringLiteral("sgRateSets"), focusedName(*screen));
    for (const char *name : {"Outer", "Inner"}) {
        onceOpened("frmPreferencesRateSetEdit", [&](frmScreen &edit) {
            QTest::keyClicks(edit.focusWidget(), QString::fromUtf8(name));
            QTest::keyClick(edit.focusWidget(), Qt::Key_Tab);
            QTest::keyClicks(edit.focusWidget(), QStringLiteral("100"));
            QTest::keyClick(edit.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(edit.focusWidget(), Qt::Key_Space);
            QTest::keyClick(edit.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(edit.focusWidget(), Qt::Key_Return);
        });
        QTest::keyClick(screen->focusWidget(), Qt::Key_Insert);
    }
    const QString rates = QStringLiteral("|100.00|10.00|5.00|10.00|100.00|100.00|100.00");
    EXPECT_EQ(
        QStringList({QStringLiteral("Outer") + rates, QStringLiteral("Inner") + rates}), rows(*screen, "sgRateSets"));
    EXPECT_EQ(2, grid(*screen, "sgRateSets").SelectedRow());
    onceOpened("frmPreferencesRateSetEdit", [&](frmScreen &edit) {
        EXPECT_EQ(QStringLiteral("Outer"), text(edit, "txtName"));
        QTest::keyClicks(edit.focusWidget(), QStringLiteral(" London"));
        QTest::keyClick(edit.focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(screen->focusWidget(), Qt::Key_Up);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QStringList({QStringLiteral("Outer London>100.00"), QStringLiteral("Inner>100.00")}), rateSets());
    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    expectDeleteQuestion("Rate Set");
    EXPECT_EQ(QStringList(QStringLiteral("Inner>100.00")), rateSets());
    EXPECT_EQ(1, Preferences->RateSet(1)->Index);
}

TEST_F(PreferencesLists, TheMenusDeleteTooAndTheButtonsAdd)
{
    addReplacement("ab", "above");
    addRateSet("Outer", "1.00");
    const auto screen = preferences(Replacements);
    struct clsList {
        int page;
        const char *grid;
        const char *menu;
        const char *entry;
        const char *add;
        const char *editor;
        const char *word;
    };
    for (const clsList &list : {clsList {Replacements, "sgReplacements", "mnuReplacements", "mnuDeleteReplacement",
                                    "cmdAddReplacement", "frmReplacementEdit", "Replacement"},
             clsList {RateSets, "sgRateSets", "mnuRateSets", "mnuDeleteRateSet", "cmdAddRateSet",
                 "frmPreferencesRateSetEdit", "Rate Set"}}) {
        screen->Switcher().SwitchTo(list.page);
        EXPECT_TRUE(screen->findChild<QMenu *>(QString::fromUtf8(list.menu))) << list.menu;
        auto *entry = screen->findChild<QAction *>(QString::fromUtf8(list.entry));
        ASSERT_TRUE(entry) << list.entry;
        EXPECT_EQ(QStringLiteral("Delete"), entry->text().remove(u'&'));
        grid(*screen, list.grid).SelectRow(1);
        user.answers = {clsUserInterface::Yes};
        entry->trigger();
        expectDeleteQuestion(list.word);
        EXPECT_EQ(0, grid(*screen, list.grid).Rows());

        auto &add = screen->Box<oCustomButton>(list.add);
        EXPECT_EQ(QStringLiteral("Add"), add.Caption());
        EXPECT_TRUE(add.isEnabled());
        bool opened = false;
        onceOpened(list.editor, [&](frmScreen &edit) {
            opened = true;
            press(edit, "cmdCancel");
        });
        QTest::mouseClick(&add, Qt::LeftButton);
        EXPECT_TRUE(opened);
    }
    EXPECT_TRUE(Preferences->ReplacementsCollection().empty());
    EXPECT_TRUE(Preferences->RateSetsCollection().empty());
}

TEST_F(PreferencesLists, DeletingWithNothingSelectedDoesNothing)
{
    const auto screen = preferences(Replacements);
    user.answers = {clsUserInterface::Yes};
    key(*screen, "sgReplacements", Qt::Key_Delete);
    screen->findChild<QAction *>(QStringLiteral("mnuDeleteReplacement"))->trigger();
    EXPECT_TRUE(user.messages.empty());
}

// How it is opened

TEST_F(PreferencesLists, OpensOnThePageThatIsAskedFor)
{
    for (const int page : {GeneralSettings, Replacements, RateSets}) {
        bool opened = false;
        onceOpened("frmPreferences", [&](frmScreen &screen) {
            opened = true;
            EXPECT_EQ(page, screen.Switcher().OpenPage());
            press(screen, "cmdClose");
        });
        mdShowPreferences(nullptr, page);
        EXPECT_TRUE(opened);
    }
}

TEST_F(PreferencesLists, AnAbbreviationWorksAtTheNextBlank)
{
    oAllPurposeBox box;
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    type(box, QStringLiteral("ab"));
    onceOpened("frmPreferences", [&](frmScreen &screen) {
        onceOpened("frmReplacementEdit", [&](frmScreen &edit) {
            type(edit.Box("txtInputText"), QStringLiteral("ab"));
            type(edit.Box("txtOutputText"), QStringLiteral("above"));
            press(edit, "cmdSave");
        });
        press(screen, "cmdAddReplacement");
        press(screen, "cmdClose");
    });
    mdShowPreferences(&box, Replacements);
    QTest::keyClick(focusPart(box), Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("above"), box.Text());
}

TEST_F(PreferencesLists, AnItemThatGoesWhileItIsEditedIsNotWritten)
{
    addReplacement("ab", "above");
    addReplacement("cd", "below");
    const auto screen = preferences(Replacements);
    onceOpened("frmReplacementEdit", [&](frmScreen &edit) {
        // The box's menu can open the same list again, over its editor.
        onceOpened("frmPreferences", [&](frmScreen &second) {
            user.answers = {clsUserInterface::Yes};
            grid(second, "sgReplacements").SelectRow(1);
            key(second, "sgReplacements", Qt::Key_Delete);
            press(second, "cmdClose");
        });
        mdShowPreferences(&edit, Replacements);
        type(edit.Box("txtOutputText"), QStringLiteral("nowhere"));
        press(edit, "cmdSave");
    });
    grid(*screen, "sgReplacements").SelectRow(1);
    key(*screen, "sgReplacements", Qt::Key_Return);
    EXPECT_EQ(QStringList("cd>below"), replacements());
    EXPECT_EQ(QStringList("cd|below"), rows(*screen, "sgReplacements"));
}

// Opened again

TEST_F(PreferencesLists, FromABoxOfTheirOwnThePreferencesOnlyTurnTheirPage)
{
    addReplacement("ab", "above");
    addReplacement("cd", "below");
    addReplacement("ef", "beside");
    const auto screen = preferences();
    type(screen->Box("txtDefaultVATRate"), QStringLiteral("20"));
    type(screen->Box("txtAutoBackupPath"), QStringLiteral("/backups"));
    QTimer second;
    QObject::connect(&second, &QTimer::timeout, &second, [] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            ADD_FAILURE() << modal->objectName().toStdString() << " opens over the preferences";
            modal->close();
        }
    });
    second.start(20);
    mdShowPreferences(screen.get(), Replacements);
    second.stop();
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(Replacements, screen->Switcher().OpenPage());
    EXPECT_EQ(QStringLiteral("sgReplacements"), focusedName(*screen));
    // The rows are those of the list, and the typed text is still there.
    user.answers = {clsUserInterface::Yes, clsUserInterface::Yes};
    grid(*screen, "sgReplacements").SelectRow(1);
    key(*screen, "sgReplacements", Qt::Key_Delete);
    EXPECT_EQ(QStringList({QStringLiteral("cd>below"), QStringLiteral("ef>beside")}), replacements());
    grid(*screen, "sgReplacements").SelectRow(1);
    key(*screen, "sgReplacements", Qt::Key_Delete);
    EXPECT_EQ(QStringList("ef>beside"), replacements());
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("20.00"), Preferences->DefaultVATRate());
    EXPECT_EQ(QStringLiteral("/backups"), Preferences->AutoBackupPath());
}

TEST_F(PreferencesLists, OpenedOverAnEditorTheyLeaveNothingStaleBelow)
{
    addReplacement("ab", "above");
    addReplacement("cd", "below");
    addReplacement("ef", "beside");
    const auto screen = preferences();
    type(screen->Box("txtAutoBackupPath"), QStringLiteral("/typed"));
    screen->Switcher().SwitchTo(Replacements);
    onceOpened("frmReplacementEdit", [&](frmScreen &edit) {
        EXPECT_EQ(QStringLiteral("cd"), text(edit, "txtInputText"));
        type(edit.Box("txtOutputText"), QStringLiteral("beneath"));
        onceOpened("frmPreferences", [&](frmScreen &second) {
            EXPECT_NE(screen.get(), &second);
            EXPECT_EQ(Replacements, second.Switcher().OpenPage());
            EXPECT_EQ(QString(), text(second, "txtAutoBackupPath"));
            user.answers = {clsUserInterface::Yes};
            grid(second, "sgReplacements").SelectRow(1);
            key(second, "sgReplacements", Qt::Key_Delete);
            second.Switcher().SwitchTo(GeneralSettings);
            type(second.Box("txtDefaultVATRate"), QStringLiteral("20"));
            click(second, "chkAutoRefreshPreview");
            press(second, "cmdClose");
        });
        mdShowPreferences(&edit, Replacements);
        EXPECT_EQ(
            QStringList({QStringLiteral("cd|below"), QStringLiteral("ef|beside")}), rows(*screen, "sgReplacements"));
        EXPECT_EQ(QStringLiteral("beneath"), text(edit, "txtOutputText"));
        edit.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&edit));
        press(edit, "cmdSave");
    });
    grid(*screen, "sgReplacements").SelectRow(2);
    key(*screen, "sgReplacements", Qt::Key_Return);
    EXPECT_EQ(QStringList({QStringLiteral("cd>beneath"), QStringLiteral("ef>beside")}), replacements());
    EXPECT_EQ(1, grid(*screen, "sgReplacements").SelectedRow()) << "the item that was edited";
    EXPECT_EQ(QStringLiteral("20.00"), text(*screen, "txtDefaultVATRate"));
    EXPECT_TRUE(tick(*screen, "chkAutoRefreshPreview").Checked());
    EXPECT_EQ(QStringLiteral("/typed"), text(*screen, "txtAutoBackupPath"));
    user.answers = {clsUserInterface::Yes};
    key(*screen, "sgReplacements", Qt::Key_Delete);
    EXPECT_EQ(QStringList("ef>beside"), replacements());
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("20.00"), Preferences->DefaultVATRate());
    EXPECT_TRUE(Preferences->AutoRefreshPreview());
    EXPECT_EQ(QStringLiteral("/typed"), Preferences->AutoBackupPath());
}
