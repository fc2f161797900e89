#pragma once

#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oFrame.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/mdScreenControls.h"
#include "tests/editors/clsModalTest.h"
#include "tests/editors/mdOnceOpened.h"
#include "tests/editors/mdWalkedScreens.h"
#include "tests/window/clsMainWindowTest.h"
#include "tests/window/mdEveryFieldTables.h"

#include <QComboBox>

/// Goes through all tabs of the main window, all pages of each screen and all items of each list, stopping at each
/// field. Uses only clicks and keys.
class clsFieldWalk : public clsMainWindowTest {
protected:
    /// How a list's items are reached: by adding them, or by opening existing ones.
    enum class Items { Added, Opened };
    /// What to do at a field, and at the end of a screen before leaving it. Items count from 1; a section has 0.
    struct clsStop {
        Items items;
        std::function<void(frmScreen &, const clsExpectedScreen &, const clsExpectedField &, int item)> field;
        std::function<void(frmScreen &, const clsExpectedScreen &, int item)> leaving;
    };

    void everyTab(const clsTabsOfType &type, const clsStop &stop) const
    {
        for (const auto &[tab, texts] : type.rows) {
            clickTab("tbSection", tab);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QStringList expected;
            for (const char *text : texts)
                expected << QLatin1String(text);
            EXPECT_EQ(expected, tabs("tbSubSection")) << tab;
            for (const char *text : texts) {
                const clsExpectedScreen screen = screenOf(text, nullptr);
                inScreen(
                    screen.name, [&] { clickTab("tbSubSection", text); },
                    [&](frmScreen &opened) { throughScreen(opened, screen, 0, stop); });
            }
        }
    }

    /// Clicks the caption of a control's page, if that isn't open.
    static void openPageOf(const frmScreen &screen, const QWidget &control)
    {
        for (const clsScreenField &field : screen.Fields())
            if (field.control == &control && field.page > 0 && screen.Switcher().OpenPage() != field.page)
                Hands::click(*screen.Switcher().Page(field.page)->captionBar());
        EXPECT_TRUE(control.isVisible()) << control.objectName().toStdString();
    }
    static void type(QWidget &box, const QString &text) { Hands::type(box, text); }
    static void click(QWidget &widget) { Hands::click(widget); }
    /// Chooses the entry this many below the first. The list is first moved elsewhere, so that it changes.
    static void choose(QComboBox &list, int down)
    {
        list.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&list, Qt::Key_Down);
        for (int entry = list.currentIndex(); entry > 0; --entry)
            QTest::keyClick(&list, Qt::Key_Up);
        while (down-- > 0)
            QTest::keyClick(&list, Qt::Key_Down);
    }
    static QString shown(const QWidget &control)
    {
        if (const auto *tick = qobject_cast<const oCheckBox *>(&control))
            return tick->Checked() ? QStringLiteral("True") : QStringLiteral("False");
        return mdTextOf(control);
    }

private:
    struct Hands : clsModalTest {
        using clsModalTest::activate;
        using clsModalTest::click;
        using clsModalTest::focusPart;
        using clsModalTest::press;
        using clsModalTest::type;
    };

    static clsExpectedScreen screenOf(const char *section, const char *name)
    {
        for (const clsExpectedScreen &screen : AllExpectedScreens())
            if (name ? std::string_view(screen.name) == name : std::string_view(screen.section) == section)
                return screen;
        throw std::runtime_error(std::string("no screen ") + (name ? name : section));
    }

    /// Opens a modal screen and uses it until it is closed.
    static void inScreen(
        const char *name, const std::function<void()> &opens, const std::function<void(frmScreen &)> &use)
    {
        QWidget *below = QApplication::activeWindow();
        const auto used = std::make_shared<bool>(false);
        onceOpened(name, [used, use](frmScreen &screen) {
            *used = true;
            use(screen);
        });
        opens();
        EXPECT_TRUE(*used) << name;
        if (below)
            Hands::activate(*below);
    }

    static void throughScreen(frmScreen &screen, const clsExpectedScreen &expected, int item, const clsStop &stop)
    {
        EXPECT_EQ(expected.fields.size(), screen.Fields().size()) << expected.name << ": its table lacks fields";
        for (const clsExpectedField &field : expected.fields) {
            if (field.kind == 'b')
                continue;
            openPageOf(screen, screen.Box(field.control));
            if (field.kind == 'g')
                throughItems(screen, field.control, stop);
            else
                stop.field(screen, expected, field, item);
        }
        stop.leaving(screen, expected, item);
        Hands::press(screen, screen.Screen().ending == clsScreenEnding::Close ? "cmdClose" : "cmdSave");
    }

    static void throughItems(frmScreen &screen, const char *grid, const clsStop &stop)
    {
        for (const clsItemsOfScreen &list : ItemsOfScreens) {
            if (std::string_view(list.grid) != grid)
                continue;
            const clsExpectedScreen editor = screenOf(nullptr, list.editor);
            for (int item = 1; item <= list.items; ++item) {
                const bool adds = *list.add && stop.items == Items::Added;
                inScreen(
                    list.editor,
                    [&] { adds ? Hands::press(screen, list.add) : openItem(screen.Box<oSGrid>(grid), item); },
                    [&](frmScreen &opened) { throughScreen(opened, editor, item, stop); });
            }
            EXPECT_EQ(list.items, screen.Box<oSGrid>(grid).Rows()) << grid;
            return;
        }
        ADD_FAILURE() << "nothing is known of the items of " << grid;
    }
    static void openItem(oSGrid &grid, int item)
    {
        QWidget *rows = Hands::focusPart(grid);
        rows->setFocus(Qt::TabFocusReason);
        for (int row = 0; row < grid.Rows(); ++row)
            QTest::keyClick(rows, Qt::Key_Up);
        for (int row = 1; row < item; ++row)
            QTest::keyClick(rows, Qt::Key_Down);
        QTest::keyClick(rows, Qt::Key_Return);
    }
};
