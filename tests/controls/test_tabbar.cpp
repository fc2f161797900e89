#include "controls/oTabBar.h"

#include "controls/mdTheme.h"
#include "controls/oTabBarButton.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

/// The tab rows of a window, between two widgets that take the focus.
class TabBar : public testing::Test {
protected:
    TabBar()
    {
        auto *rows = new QVBoxLayout(&window);
        rows->addWidget(&before);
        rows->addWidget(&bar);
        rows->addWidget(&behind);
        bar.setObjectName(QStringLiteral("tbSection"));
    }

    void addFour()
    {
        for (const char *caption : {"Form Options", "Pre-Bill Sections", "Bill", "Post-Bill Sections"})
            bar.AddButton(QLatin1String(caption), QLatin1String(caption) + QLatin1String(" tag"));
    }
    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// The tab at an index, counted from the left.
    oTabBarButton *tab(int index)
    {
        return bar.findChild<oTabBarButton *>(QStringLiteral("tbSection") + QString::number(index));
    }
    /// The indices of the tabs shown as selected.
    std::vector<int> marked()
    {
        std::vector<int> result;
        for (int i = 1; tab(i); ++i)
            if (tab(i)->Selected())
                result.push_back(i);
        return result;
    }

    QWidget window;
    QPushButton before;
    oTabBar bar;
    QPushButton behind;
};

} // namespace

TEST_F(TabBar, CountsItsTabsFromOne)
{
    addFour();
    show();
    EXPECT_EQ(0, bar.SelectedIndex());
    QSignalSpy clicks(&bar, &oTabBar::Click);
    QTest::mouseClick(tab(3), Qt::LeftButton);
    ASSERT_EQ(1, clicks.size());
    EXPECT_EQ(3, clicks[0][0].toInt());
    EXPECT_EQ(QStringLiteral("Bill tag"), clicks[0][1].toString());
    EXPECT_EQ(3, bar.SelectedIndex());
    EXPECT_EQ(std::vector {3}, marked());
    EXPECT_LT(tab(1)->x(), tab(2)->x());
}

TEST_F(TabBar, TheSelectedTabMayBeClickedAgain)
{
    addFour();
    show();
    QSignalSpy clicks(&bar, &oTabBar::Click);
    QTest::mouseClick(tab(2), Qt::LeftButton);
    QTest::mouseClick(tab(2), Qt::LeftButton);
    EXPECT_EQ(2, clicks.size());
    EXPECT_EQ(std::vector {2}, marked());
}

TEST_F(TabBar, SwitchToMarksWithoutAClick)
{
    addFour();
    QSignalSpy clicks(&bar, &oTabBar::Click);
    bar.SwitchTo(2);
    EXPECT_EQ(2, bar.SelectedIndex());
    EXPECT_EQ(std::vector {2}, marked());
    bar.SwitchTo(4);
    EXPECT_EQ(std::vector {4}, marked());
    bar.SwitchTo(0);
    EXPECT_EQ(0, bar.SelectedIndex());
    EXPECT_EQ(std::vector<int>(), marked());
    bar.SwitchTo(9);
    EXPECT_EQ(std::vector<int>(), marked());
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(TabBar, StartsAgainAtOneAfterAClear)
{
    addFour();
    show();
    bar.SwitchTo(3);
    bar.Clear();
    EXPECT_EQ(0, bar.SelectedIndex());
    EXPECT_EQ(nullptr, tab(1));
    bar.AddButton(QStringLiteral("Counsel"), QStringLiteral("Counsel"));
    QTest::qWait(0);
    ASSERT_NE(nullptr, tab(1));
    QSignalSpy clicks(&bar, &oTabBar::Click);
    QTest::mouseClick(tab(1), Qt::LeftButton);
    ASSERT_EQ(1, clicks.size());
    EXPECT_EQ(1, clicks[0][0].toInt());
    EXPECT_EQ(QStringLiteral("Counsel"), clicks[0][1].toString());
}

TEST_F(TabBar, MayBeRebuiltByItsOwnClick)
{
    addFour();
    show();
    QString told;
    QObject::connect(&bar, &oTabBar::Click, &window, [&](int, const QString &tag) {
        bar.Clear();
        addFour();
        told = tag;
    });
    QTest::mouseClick(tab(2), Qt::LeftButton);
    EXPECT_EQ(QStringLiteral("Pre-Bill Sections tag"), told);
    EXPECT_EQ(std::vector<int>(), marked());
}

TEST_F(TabBar, IsBuiltUnseenWhileRedrawingIsOff)
{
    show();
    bar.setDoRedraw(false);
    addFour();
    bar.SwitchTo(1);
    EXPECT_EQ(1, bar.SelectedIndex());
    EXPECT_EQ(std::vector<int>(), marked());
    EXPECT_FALSE(bar.updatesEnabled());
    bar.setDoRedraw(true);
    EXPECT_EQ(std::vector {1}, marked());
    EXPECT_TRUE(bar.updatesEnabled());
}

TEST_F(TabBar, LeftAndRightMoveAndOpenNothing)
{
    addFour();
    show();
    QSignalSpy clicks(&bar, &oTabBar::Click);
    tab(1)->setFocus();
    QTest::keyClick(tab(1), Qt::Key_Right);
    EXPECT_TRUE(tab(2)->hasFocus());
    QTest::keyClick(tab(2), Qt::Key_Left);
    EXPECT_TRUE(tab(1)->hasFocus());
    QTest::keyClick(tab(1), Qt::Key_Left);
    EXPECT_TRUE(tab(1)->hasFocus()) << "the row has ends";
    QTest::keyClick(tab(1), Qt::Key_End);
    EXPECT_TRUE(tab(4)->hasFocus());
    QTest::keyClick(tab(4), Qt::Key_Right);
    EXPECT_TRUE(tab(4)->hasFocus());
    QTest::keyClick(tab(4), Qt::Key_Home);
    EXPECT_TRUE(tab(1)->hasFocus());
    tab(2)->setEnabled(false);
    QTest::keyClick(tab(1), Qt::Key_Right);
    EXPECT_TRUE(tab(3)->hasFocus()) << "over a disabled one";
    tab(4)->setEnabled(false);
    tab(1)->setFocus();
    QTest::keyClick(tab(1), Qt::Key_End);
    EXPECT_TRUE(tab(3)->hasFocus());
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(TabBar, EnterAndSpaceOpen)
{
    addFour();
    show();
    QSignalSpy clicks(&bar, &oTabBar::Click);
    tab(2)->setFocus();
    QTest::keyClick(tab(2), Qt::Key_Return);
    QTest::keyClick(tab(2), Qt::Key_Enter);
    QTest::keyClick(tab(2), Qt::Key_Space);
    ASSERT_EQ(3, clicks.size());
    EXPECT_EQ(2, clicks[2][0].toInt());
}

TEST_F(TabBar, EnterHeldDownOpensOnce)
{
    addFour();
    show();
    QSignalSpy clicks(&bar, &oTabBar::Click);
    for (const bool isRepeat : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), isRepeat);
        QApplication::sendEvent(tab(2), &press);
    }
    EXPECT_EQ(1, clicks.size());
}

TEST_F(TabBar, TheTabKeyStopsOnceAndLeaves)
{
    addFour();
    show();
    bar.SwitchTo(3);
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(tab(3)->hasFocus()) << "at the selected one";
    QTest::keyClick(tab(3), Qt::Key_Left);
    QTest::keyClick(tab(2), Qt::Key_Tab);
    EXPECT_TRUE(behind.hasFocus());
    QTest::keyClick(&behind, Qt::Key_Backtab);
    EXPECT_TRUE(tab(2)->hasFocus()) << "where it was left";
    QTest::keyClick(tab(2), Qt::Key_Backtab);
    EXPECT_TRUE(before.hasFocus());
}

TEST_F(TabBar, TheTabKeyFindsARowThatWasMadeThisMoment)
{
    show();
    before.setFocus();
    // No event is handled in between: on a busy machine both keys are already queued.
    addFour();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_EQ(tab(1), window.focusWidget());
    bar.Clear();
    addFour();
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_EQ(tab(1), window.focusWidget());
}

TEST_F(TabBar, ScrollsWhereItIsTooNarrowAndNeverShrinksItsTexts)
{
    addFour();
    window.resize(1000, 200);
    show();
    auto *scrollers = bar.findChild<QToolButton *>();
    const std::vector widths {tab(1)->width(), tab(4)->width()};
    EXPECT_FALSE(scrollers->isVisible());
    window.resize(260, 200);
    auto *right = bar.findChildren<QToolButton *>().at(1);
    ASSERT_TRUE(QTest::qWaitFor([right] { return right->isVisible() && right->width() > 0; }, 1000));
    ASSERT_LT(bar.width(), 300);
    EXPECT_EQ(widths, (std::vector {tab(1)->width(), tab(4)->width()}));
    tab(4)->setFocus();
    auto *view = bar.findChild<QScrollArea *>();
    EXPECT_GT(view->horizontalScrollBar()->value(), 0);
    const QRect seen(tab(4)->mapTo(view->viewport(), QPoint()), tab(4)->size());
    EXPECT_TRUE(view->viewport()->rect().contains(seen)) << "the focus comes into view";
    tab(1)->setFocus();
    const int left = view->horizontalScrollBar()->value();
    QTest::mouseClick(right, Qt::LeftButton);
    EXPECT_GT(view->horizontalScrollBar()->value(), left);
    window.resize(1000, 200);
    EXPECT_TRUE(QTest::qWaitFor([right] { return !right->isVisible(); }, 1000));
}

TEST_F(TabBar, ChoosingATabMovesNoneOfThem)
{
    addFour();
    show();
    const int place = tab(4)->x();
    bar.SwitchTo(1);
    bar.layout()->activate();
    EXPECT_EQ(place, tab(4)->x());
}

TEST_F(TabBar, AnAmpersandIsShownAsItIs)
{
    bar.AddButton(QStringLiteral("R&D"), QStringLiteral("R&D"));
    EXPECT_EQ(QStringLiteral("R&D"), tab(1)->Caption());
    EXPECT_EQ(QStringLiteral("R&D"), tab(1)->accessibleName());
}

TEST_F(TabBar, IsAListOfTabsToAScreenReader)
{
    addFour();
    show();
    bar.SwitchTo(2);
    EXPECT_EQ(QAccessible::PageTabList, QAccessible::queryAccessibleInterface(&bar)->role());
    QAccessibleInterface *second = QAccessible::queryAccessibleInterface(tab(2));
    EXPECT_EQ(QAccessible::PageTab, second->role());
    EXPECT_EQ(QStringLiteral("Pre-Bill Sections"), second->text(QAccessible::Name));
    EXPECT_TRUE(second->state().selected);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(tab(1))->state().selected);
    QSignalSpy clicks(&bar, &oTabBar::Click);
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(1, clicks.size());
}

TEST_F(TabBar, TheSecondRowIsMadeOfButtons)
{
    bar.setRow(oTabBar::Row::Buttons);
    addFour();
    show();
    EXPECT_EQ(QAccessible::PushButton, QAccessible::queryAccessibleInterface(tab(1))->role());
    QSignalSpy clicks(&bar, &oTabBar::Click);
    QTest::mouseClick(tab(4), Qt::LeftButton);
    EXPECT_EQ(1, clicks.size());
    bar.SwitchTo(0);
    EXPECT_EQ(std::vector<int>(), marked());
}

TEST_F(TabBar, AButtonMayBeReset)
{
    addFour();
    bar.SwitchTo(2);
    tab(2)->Reset();
    EXPECT_FALSE(tab(2)->Selected());
    tab(2)->setCaption(QStringLiteral("Bills"));
    EXPECT_EQ(QStringLiteral("Bills"), tab(2)->Caption());
}
