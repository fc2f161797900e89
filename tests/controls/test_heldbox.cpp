#include "controls/mdLeaveFocusedBox.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oTimeBox.h"
#include "controls/oTimeSpentBox.h"
#include "tests/controls/clsBoxWindow.h"

#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

namespace {

/// A screen on which the user has just typed a date that does not exist, and is still in the box.
class HeldBox : public BoxWindow {
protected:
    oDateBox *txtDate = add<oDateBox>("txtDate");

    void typeBadDate()
    {
        show();
        type(txtDate, "31/02/24");
        ASSERT_TRUE(isWhite(txtDate));
    }
    void expectHeld() const
    {
        EXPECT_TRUE(has(txtDate));
        EXPECT_TRUE(isPink(txtDate));
        EXPECT_EQ(QStringLiteral("31/02/24"), txtDate->Text());
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(0, saved);
    }
};

} // namespace

TEST_F(HeldBox, IsNotLeftByTheTabKey)
{
    typeBadDate();
    QTest::keyClick(inner(txtDate), Qt::Key_Tab);
    expectHeld();
    QTest::keyClick(inner(txtDate), Qt::Key_Backtab);
    expectHeld();
}

TEST_F(HeldBox, AClickOnSaveDoesNotSave)
{
    typeBadDate();
    press(&cmdSave);
    expectHeld();
    EXPECT_FALSE(cmdSave.isDown());
    QTest::mouseDClick(&cmdSave, Qt::LeftButton);
    expectHeld();
    type(txtDate, "1/2/24");
    press(&cmdSave);
    EXPECT_EQ(1, saved);
    EXPECT_EQ(QStringLiteral("01/02/24"), txtDate->Text());
}

TEST_F(HeldBox, AClickThroughTheWindowSystemDoesNotSaveEither)
{
    typeBadDate();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, cmdSave.mapTo(&screen, cmdSave.rect().center()));
    expectHeld();
}

TEST_F(HeldBox, AClickOnAButtonWithoutFocusIsStopped)
{
    QPushButton next(QStringLiteral("Next >>"), &screen);
    next.setFocusPolicy(Qt::NoFocus);
    QSignalSpy clicks(&next, &QPushButton::clicked);
    typeBadDate();
    press(&next);
    expectHeld();
    EXPECT_TRUE(clicks.isEmpty());
    type(txtDate, "1/2/24");
    press(&next);
    EXPECT_EQ(1, clicks.size());
    EXPECT_EQ(QStringLiteral("01/02/24"), txtDate->Text()) << "normalised although the focus stays";
}

TEST_F(HeldBox, TheMnemonicOfSaveDoesNotSave)
{
    typeBadDate();
    QTest::keyClick(inner(txtDate), Qt::Key_S, Qt::AltModifier);
    QTest::qWait(150); // a mnemonic shows the button pressed for a moment before it clicks
    expectHeld();
    type(txtDate, "1/2/24");
    QTest::keyClick(inner(txtDate), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return saved == 1; }, 1000));
    EXPECT_EQ(QStringLiteral("01/02/24"), txtDate->Text());
}

TEST_F(HeldBox, ReturnDoesNotPressTheDefaultButton)
{
    typeBadDate();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(inner(txtDate), key);
        expectHeld();
    }
    type(txtDate, "1/2/24");
    QTest::keyClick(inner(txtDate), Qt::Key_Return);
    EXPECT_EQ(1, saved);
    EXPECT_EQ(QStringLiteral("01/02/24"), txtDate->Text());
}

TEST_F(HeldBox, CancelIsHeldAsEveryButton)
{
    typeBadDate();
    press(&cmdCancel);
    expectHeld();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, cmdCancel.mapTo(&screen, cmdCancel.rect().center()));
    expectHeld();
    QTest::keyClick(inner(txtDate), Qt::Key_N, Qt::AltModifier);
    QTest::qWait(150); // a mnemonic shows the button pressed for a moment before it clicks
    expectHeld();
    EXPECT_EQ(0, cancelled);
    type(txtDate, "1/2/24");
    press(&cmdCancel);
    EXPECT_EQ(1, cancelled);
}

TEST_F(HeldBox, EscAndTheCloseBoxGoThrough)
{
    typeBadDate();
    leave();
    expectHeld();
    QTest::keyClick(inner(txtDate), Qt::Key_Escape);
    EXPECT_FALSE(screen.isVisible());

    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    txtDate->setFocus();
    EXPECT_TRUE(screen.close());
    EXPECT_FALSE(screen.isVisible());
}

TEST_F(HeldBox, AClosingScreenValidatesNothing)
{
    typeBadDate();
    QTest::keyClick(inner(txtDate), Qt::Key_Escape);
    EXPECT_FALSE(screen.isVisible());
    EXPECT_FALSE(inner(txtDate)->property("invalid").toBool());
}

TEST_F(HeldBox, TwoBadBoxesDoNotFight)
{
    auto *txtSecond = add<oDateBox>("txtSecond");
    typeBadDate();
    txtSecond->setText(QStringLiteral("never"));
    QSignalSpy changes(qApp, &QApplication::focusChanged);
    press(inner(txtSecond));
    expectHeld();
    QTest::keyClick(inner(txtDate), Qt::Key_Tab);
    expectHeld();
    inner(txtSecond)->setFocus();
    expectHeld();
    EXPECT_LE(changes.size(), 6) << "there and back each time";

    type(txtDate, "1/2/24");
    QTest::keyClick(inner(txtDate), Qt::Key_Tab);
    EXPECT_TRUE(has(txtSecond)) << "the second one's turn";
    EXPECT_TRUE(isWhite(txtDate));
    inner(txtDate)->setFocus();
    EXPECT_TRUE(has(txtSecond));
    EXPECT_TRUE(isPink(txtSecond));
    EXPECT_EQ("01/02/24", typed(txtSecond, "1/2/24"));
    EXPECT_TRUE(txtOther.hasFocus());
}

TEST_F(HeldBox, AProgramThatWritesASecondBadDateDoesNotStartAFight)
{
    auto *txtSecond = add<oDateBox>("txtSecond");
    typeBadDate();
    txtSecond->setText(QStringLiteral("never"));
    expectHeld();
    EXPECT_TRUE(isPink(txtSecond));
    EXPECT_FALSE(has(txtSecond));
}

TEST_F(HeldBox, SeveralBadDatesOfOneRecordEndWithOneFocus)
{
    auto *txtSecond = add<oDateBox>("txtSecond");
    show();
    for (oDateBox *box : {txtDate, txtSecond, txtDate})
        box->setText(QStringLiteral("never"));
    txtDate->setText(QStringLiteral("at no time"));
    txtSecond->setText(QStringLiteral("at no time"));
    EXPECT_TRUE(isPink(txtDate));
    EXPECT_TRUE(isPink(txtSecond));
    EXPECT_NE(has(txtDate), has(txtSecond));
}

TEST_F(HeldBox, AnotherWindowInFrontIsNoLeaving)
{
    typeBadDate();
    QDialog front;
    front.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    EXPECT_TRUE(isWhite(txtDate));
    EXPECT_TRUE(front.isActiveWindow()) << "the box fetches nothing back";
    QSignalSpy changes(qApp, &QApplication::focusChanged);
    front.close();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    EXPECT_TRUE(has(txtDate));
    EXPECT_LE(changes.size(), 3);
    leave();
    expectHeld();
}

TEST_F(HeldBox, AnOpenMenuIsNoLeaving)
{
    typeBadDate();
    QMenu menu;
    menu.addAction(QStringLiteral("Paste"));
    QTimer::singleShot(0, &menu, &QMenu::close);
    menu.exec(screen.mapToGlobal(QPoint(1, 1)));
    screen.activateWindow(); // the offscreen platform doesn't do this itself
    EXPECT_TRUE(QTest::qWaitFor([this] { return has(txtDate); }, 1000));
    EXPECT_TRUE(isWhite(txtDate));
}

TEST_F(HeldBox, TheReturnFromAMenuKeepsTheSelection)
{
    typeBadDate();
    inner(txtDate)->setSelection(0, 2);
    QMenu menu;
    QTimer::singleShot(0, &menu, &QMenu::close);
    menu.exec(screen.mapToGlobal(QPoint(1, 1)));
    EXPECT_EQ(QStringLiteral("31"), inner(txtDate)->selectedText());
}

TEST_F(HeldBox, AListDoesNotOpen)
{
    QComboBox list(&screen);
    list.addItems({QStringLiteral("a"), QStringLiteral("b")});
    typeBadDate();
    press(&list);
    expectHeld();
    EXPECT_EQ(nullptr, QApplication::activePopupWidget());
}

TEST_F(HeldBox, APlainPlaceMayBeClicked)
{
    typeBadDate();
    QTest::mouseClick(&screen, Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_TRUE(has(txtDate));
    EXPECT_TRUE(isWhite(txtDate)) << "the focus did not move, and nothing is judged";
}

TEST_F(HeldBox, AScrollBarMoves)
{
    QScrollArea area(&screen);
    auto *tall = new QWidget;
    tall->setMinimumHeight(1000);
    area.setWidget(tall);
    rows.addWidget(&area);
    typeBadDate();
    QScrollBar *bar = area.verticalScrollBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 20));
    EXPECT_GT(bar->value(), 0);
    EXPECT_TRUE(has(txtDate));
}

TEST_F(HeldBox, ABoxThatIsDisabledOrHiddenLetsGo)
{
    auto *txtAmount = add<oDecimalBox>("txtAmount");
    typeBadDate();
    for (QWidget *box : {static_cast<QWidget *>(txtDate), static_cast<QWidget *>(txtAmount)}) {
        type(box, "31x");
        box->setEnabled(false);
        EXPECT_FALSE(has(box));
        EXPECT_FALSE(inner(box)->property("invalid").toBool());
        box->setEnabled(true);
        type(box, "31x");
        box->hide();
        EXPECT_FALSE(has(box));
        EXPECT_FALSE(inner(box)->property("invalid").toBool());
    }
}

TEST_F(HeldBox, AHiddenPageLetsItsBoxGo)
{
    QWidget page(&screen);
    auto *box = new oDateBox(&page);
    show();
    type(box, "31/02/24");
    page.hide();
    EXPECT_FALSE(has(box));
    EXPECT_FALSE(inner(box)->property("invalid").toBool());
}

TEST_F(HeldBox, ABoxThatGoesAwayLeavesNoTrace)
{
    typeBadDate();
    leave();
    delete txtDate;
    press(&cmdSave);
    EXPECT_EQ(1, saved);
    EXPECT_TRUE(mdLeaveFocusedBox(&screen));
}

TEST_F(HeldBox, AScreenThatIsAboutToReadItsBoxesMayAsk)
{
    typeBadDate();
    EXPECT_FALSE(mdLeaveFocusedBox(&screen));
    expectHeld();
    type(txtDate, "1/2/24");
    EXPECT_TRUE(mdLeaveFocusedBox(&screen));
    EXPECT_TRUE(has(txtDate));
    EXPECT_EQ(QStringLiteral("01/02/24"), txtDate->Text());
    leave();
    EXPECT_TRUE(mdLeaveFocusedBox(&screen)) << "no typed box has the focus";
}

TEST_F(HeldBox, AskingABoxOfTheClockWritesItsTime)
{
    auto *box = add<oTimeBox>("txtTime");
    show();
    QSignalSpy left(box, &oTimeBox::Left);
    type(box, "90");
    EXPECT_TRUE(mdLeaveFocusedBox(&screen));
    EXPECT_EQ(1, left.size());
}

TEST_F(HeldBox, TheClockIsNotStartedOnABadTime)
{
    auto *clock = add<oTimeSpentBox>("clock");
    show();
    auto *txtTime = clock->findChild<oTimeBox *>();
    auto *button = clock->findChild<QPushButton *>();
    type(txtTime, "abc");
    press(button);
    EXPECT_EQ(QStringLiteral("Start"), button->text());
    EXPECT_TRUE(isPink(txtTime));
    type(txtTime, "90");
    press(button);
    EXPECT_EQ(QStringLiteral("Stop"), button->text());
    EXPECT_EQ(QStringLiteral("01:30"), clock->TimeSpent());
}

TEST_F(HeldBox, TheMenuBarOpens)
{
    QMainWindow window;
    window.setCentralWidget(new oTimeBox);
    QMenu *file = window.menuBar()->addMenu(QStringLiteral("&File"));
    int chosen = 0;
    file->addAction(QStringLiteral("Save"), &window, [&chosen] { ++chosen; });
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QWidget *box = window.centralWidget();
    type(box, "abc");
    QTimer::singleShot(0, file, [file] {
        ASSERT_TRUE(file->isVisible());
        QTest::keyClick(file, Qt::Key_Down);
        QTest::keyClick(file, Qt::Key_Return);
    });
    QTest::mouseClick(
        window.menuBar(), Qt::LeftButton, {}, window.menuBar()->actionGeometry(file->menuAction()).center());
    EXPECT_TRUE(QTest::qWaitFor([&chosen] { return chosen == 1; }, 1000));
    EXPECT_TRUE(isWhite(box));
}
