#pragma once

#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oGridView.h"
#include "controls/oSGrid.h"
#include "tests/editors/clsPreferencesTest.h"

/// Base of tests of the preferences' screen: its pages, ticks and grids.
class clsPreferencesScreenTest : public clsPreferencesTest {
protected:
    static constexpr int GeneralSettings = 1, Replacements = 2, RateSets = 3;

    static std::unique_ptr<frmScreen> preferences(int page = GeneralSettings)
    {
        auto screen = std::make_unique<frmScreen>(ScreenPreferences());
        screen->Switcher().SwitchTo(page);
        screen->Initialise();
        show(*screen);
        return screen;
    }
    static oCheckBox &tick(const frmScreen &screen, const char *name) { return screen.Box<oCheckBox>(name); }
    static void click(const frmScreen &screen, const char *name)
    {
        QTest::mouseClick(&screen.Box(name), Qt::LeftButton, {}, QPoint(12, 12));
    }
    static bool browses(const frmScreen &screen) { return screen.Box("cmdAutoBackupPathBrowse").isEnabled(); }

    static oSGrid &grid(const frmScreen &screen, const char *name) { return screen.Box<oSGrid>(name); }
    static QAbstractItemView &view(const frmScreen &screen, const char *name)
    {
        return *grid(screen, name).findChild<oGridView *>();
    }
    /// The texts of a grid, each row as one text.
    static QStringList rows(const frmScreen &screen, const char *name)
    {
        const QAbstractItemModel &model = *view(screen, name).model();
        QStringList result;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells << model.index(row, column).data().toString();
            result << cells.join(u'|');
        }
        return result;
    }
    static void key(const frmScreen &screen, const char *name, int key)
    {
        QTest::keyClick(&view(screen, name), Qt::Key(key));
    }
    void expectDeleteQuestion(const char *what)
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Delete?"), user.messages[0].title);
        EXPECT_EQ(
            QStringLiteral("Are you sure you wish to delete this %1?").arg(QLatin1String(what)), user.messages[0].text);
        EXPECT_EQ(clsUserInterface::YesNo, user.messages[0].buttons);
        EXPECT_EQ(1, user.messages[0].icon);
        user.messages.clear();
    }
};
