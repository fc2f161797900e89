#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oSpellText.h"
#include "editors/frmScreen.h"
#include "preview/oPreviewGrid.h"
#include "tests/editors/mdOnceOpened.h"
#include "tests/window/clsMainWindowTest.h"

#include <QMenu>

#include <functional>

// The preferences, opened from the program: from the menu, and from a box on any screen.

namespace {

class PreferencesMenu : public clsMainWindowTest {
protected:
    /// The same, and records that the screen was opened.
    void onceOpened(const char *name, std::function<void(frmScreen &)> use)
    {
        ::onceOpened(name, [this, name, use = std::move(use)](frmScreen &screen) {
            opened << QString::fromLatin1(name);
            use(screen);
        });
    }
    static void press(const frmScreen &screen, const char *button)
    {
        QTest::mouseClick(&control<oCustomButton>(screen, button), Qt::LeftButton);
    }
    static void click(const frmScreen &screen, const char *tick)
    {
        QTest::mouseClick(&screen.Box(tick), Qt::LeftButton, {}, QPoint(12, 12));
    }
    /// The entry of a box's context menu.
    static QAction *editReplacements(const oAllPurposeBox &box)
    {
        const auto menu = box.findChild<oSpellText *>()->menuAt(0);
        for (QAction *action : menu->actions())
            if (action->text() == QLatin1String("Edit Replacements..."))
                return action;
        return nullptr;
    }
    QByteArray file() const
    {
        QFile in(path("program/Databases/Preferences Database.vzp"));
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    QStringList opened;
};

} // namespace

TEST_F(PreferencesMenu, TheEntryAndItsKeyOpenTheFirstPage)
{
    start();
    EXPECT_TRUE(entry("mnuPreferences").isEnabled());
    for (const bool byKey : {false, true}) {
        onceOpened("frmPreferences", [](frmScreen &screen) {
            EXPECT_EQ(1, screen.Switcher().OpenPage());
            press(screen, "cmdClose");
        });
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        if (byKey)
            QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
        else
            entry("mnuPreferences").trigger();
    }
    EXPECT_EQ(2, opened.size());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PreferencesMenu, AnAutomaticRefreshBeginsWithTheClose)
{
    start(sample("housing-typical.zr3"));
    auto &preview = control<oPreviewGrid>(*window, "sgPreview");
    const auto text = [&preview] {
        QString all;
        for (int i = 1; i <= preview.Rows(); ++i)
            for (int j = 1; j <= preview.Columns(); ++j)
                all += preview.Text(i, j);
        return all;
    };
    Form->ScheduleOfTimeItem(1)->TTime = QStringLiteral("07:37");
    window->Activate();
    EXPECT_FALSE(text().contains(QLatin1String("07:37"))) << "the switch is still off";
    onceOpened("frmPreferences", [](frmScreen &screen) {
        click(screen, "chkAutoRefreshPreview");
        press(screen, "cmdClose");
    });
    entry("mnuPreferences").trigger();
    EXPECT_TRUE(Preferences->AutoRefreshPreview());
    EXPECT_TRUE(text().contains(QLatin1String("07:37")));
    EXPECT_TRUE(file().contains("<autorefreshpreview>True</autorefreshpreview>"));
}

TEST_F(PreferencesMenu, EditReplacementsOpensTheSecondPageOverTheScreenOfTheBox)
{
    start();
    onceOpened("frmClientDetails", [this](frmScreen &client) {
        auto &surname = client.Box<oAllPurposeBox>("txtSurname");
        QAction *edit = editReplacements(surname);
        ASSERT_TRUE(edit);
        EXPECT_TRUE(edit->isEnabled());
        onceOpened("frmPreferences", [&](frmScreen &screen) {
            EXPECT_EQ(2, screen.Switcher().OpenPage());
            EXPECT_EQ(&client, screen.parentWidget());
            onceOpened("frmReplacementEdit", [](frmScreen &item) {
                item.Box<oAllPurposeBox>("txtInputText").setText(QStringLiteral("hw"));
                item.Box<oAllPurposeBox>("txtOutputText").setText(QStringLiteral("Hartwell"));
                press(item, "cmdSave");
            });
            press(screen, "cmdAddReplacement");
            press(screen, "cmdClose");
        });
        edit->trigger();
        // At the next space, without closing the screen.
        EXPECT_TRUE(client.isVisible());
        QWidget *editor = surname.focusProxy();
        editor->setFocus();
        QTest::keyClicks(editor, QStringLiteral("hw "));
        EXPECT_EQ(QStringLiteral("Hartwell"), surname.Text());
        press(client, "cmdSave");
    });
    window->tbSubSection_Click(1, QStringLiteral("Client Details"));
    EXPECT_EQ(QStringList({QStringLiteral("frmClientDetails"), QStringLiteral("frmPreferences"),
                  QStringLiteral("frmReplacementEdit")}),
        opened);
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    EXPECT_TRUE(file().contains("<outputtext>Hartwell</outputtext>"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PreferencesMenu, TheEntryOfTheBoxesGoesWithTheMainWindow)
{
    start();
    const oAllPurposeBox box;
    EXPECT_TRUE(editReplacements(box)->isEnabled());
    window.reset();
    EXPECT_FALSE(editReplacements(box)->isEnabled());
}
