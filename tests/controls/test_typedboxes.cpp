#include "base/mdClock.h"
#include "controls/mdTheme.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oIntegerBox.h"
#include "controls/oTimeBox.h"
#include "tests/controls/clsBoxWindow.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>

namespace {

class TypedBoxes : public BoxWindow {
protected:
    TypedBoxes()
    {
        SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
    }
    ~TypedBoxes() override { SetClock({}); }

    static QCheckBox *tickOf(oDateBox *box) { return box->findChild<QCheckBox *>(QStringLiteral("chkShowDate")); }
};

} // namespace

// On entering

TEST_F(TypedBoxes, SelectAllOnEntering)
{
    auto *box = add<oTimeBox>("txtTime");
    box->setText(QStringLiteral("01:30"));
    show();
    box->setFocus();
    EXPECT_TRUE(has(box)) << "the focus of the whole goes to its text";
    EXPECT_EQ(QStringLiteral("01:30"), inner(box)->selectedText());
    leave();
    press(inner(box));
    EXPECT_EQ(QStringLiteral("01:30"), inner(box)->selectedText()) << "by mouse too";
    press(inner(box));
    EXPECT_FALSE(inner(box)->hasSelectedText()) << "the second click sets the caret";
}

TEST_F(TypedBoxes, TheTabKeyStopsOnceInEach)
{
    auto *date = add<oDateBox>("txtDate");
    auto *amount = add<oDecimalBox>("txtAmount");
    show();
    QTest::keyClick(&txtOther, Qt::Key_Tab);
    EXPECT_TRUE(has(date));
    QTest::keyClick(inner(date), Qt::Key_Tab);
    EXPECT_TRUE(has(amount));
    QTest::keyClick(inner(amount), Qt::Key_Tab);
    EXPECT_TRUE(cmdSave.hasFocus());
    QTest::keyClick(&cmdSave, Qt::Key_Backtab);
    EXPECT_TRUE(has(amount));
    QTest::keyClick(inner(amount), Qt::Key_Backtab);
    EXPECT_TRUE(has(date));
    QTest::keyClick(inner(date), Qt::Key_Backtab);
    EXPECT_TRUE(txtOther.hasFocus());
}

TEST_F(TypedBoxes, AMnemonicOfALabelEnters)
{
    auto *box = add<oIntegerBox>("txtCalls");
    QLabel label(QStringLiteral("&Calls:"), &screen);
    label.setBuddy(box);
    show();
    QTest::keyClick(&txtOther, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(has(box));
}

TEST_F(TypedBoxes, TellAScreenReaderTheNameOfTheBox)
{
    auto *box = add<oIntegerBox>("txtCalls");
    box->setAccessibleName(QStringLiteral("Calls"));
    show();
    EXPECT_EQ(QStringLiteral("Calls"), inner(box)->accessibleName());
}

TEST_F(TypedBoxes, FiguresStandAtTheRightAllElseAtTheLeft)
{
    EXPECT_TRUE(inner(add<oDecimalBox>("a"))->alignment() & Qt::AlignRight);
    EXPECT_TRUE(inner(add<oIntegerBox>("b"))->alignment() & Qt::AlignRight);
    EXPECT_TRUE(inner(add<oDateBox>("c"))->alignment() & Qt::AlignLeft);
    EXPECT_TRUE(inner(add<oTimeBox>("d"))->alignment() & Qt::AlignLeft);
}

// On leaving

TEST_F(TypedBoxes, ADateIsNormalisedOnLeaving)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    type(box, "1.2.24");
    EXPECT_EQ(QStringLiteral("1.2.24"), box->Text()) << "typing is left alone";
    leave();
    EXPECT_EQ(QStringLiteral("01/02/24"), box->Text());
    EXPECT_EQ("01/02/24", typed(box, "1 2 2024"));
    EXPECT_EQ("", typed(box, " \b")) << "an empty date is no failure";
    EXPECT_TRUE(isWhite(box));
    EXPECT_TRUE(txtOther.hasFocus());
}

TEST_F(TypedBoxes, TheLastYearIsOneMemoryForAllDateBoxes)
{
    auto *first = add<oDateBox>("txtFirst");
    auto *second = add<oDateBox>("txtSecond");
    show();
    typed(first, "5/6/2023");
    EXPECT_EQ("01/02/23", typed(second, "1-2"));
    second->setText(QStringLiteral("31/12/29"));
    EXPECT_EQ("01/02/23", typed(first, "1/2")) << "the no-date value leaves the memory alone";
    first->setText(QStringLiteral("07/08/21"));
    oDateBox third(&screen);
    third.setText(QStringLiteral("3/4"));
    EXPECT_EQ(QStringLiteral("03/04/21"), third.Text()) << "values that the program loads count";
}

TEST_F(TypedBoxes, AnAmountIsNormalisedOnLeaving)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    EXPECT_EQ("1.00", typed(box, "£1,200"));
    EXPECT_EQ("12.50", typed(box, "12.5%"));
    box->setText(QString());
    EXPECT_EQ(QStringLiteral("0.00"), box->Text());
}

TEST_F(TypedBoxes, AnAmountStaysEmptyUntilItHadTheFocus)
{
    auto *box = add<oDecimalBox>("txtAmount");
    box->setText(QString());
    show();
    EXPECT_EQ(QString(), box->Text());
    box->setFocus();
    EXPECT_EQ(QString(), box->Text());
    leave();
    EXPECT_EQ(QStringLiteral("0.00"), box->Text());
}

TEST_F(TypedBoxes, ACountIsNormalisedOnLeaving)
{
    auto *box = add<oIntegerBox>("txtCalls");
    show();
    EXPECT_EQ("1000", typed(box, "1 000"));
    EXPECT_EQ("1.5", typed(box, "1.5"));
    EXPECT_EQ("0", typed(box, " "));
}

TEST_F(TypedBoxes, ATimeIsNormalisedOnLeaving)
{
    auto *box = add<oTimeBox>("txtTime");
    show();
    EXPECT_EQ("00:15", typed(box, "0.25"));
    EXPECT_EQ("02:15", typed(box, "1:75"));
    EXPECT_EQ("01:30", typed(box, "90"));
}

TEST_F(TypedBoxes, WhatDoesNotFitStaysAsTypedAndKeepsTheFocus)
{
    auto *date = add<oDateBox>("txtDate");
    auto *amount = add<oDecimalBox>("txtAmount");
    auto *count = add<oIntegerBox>("txtCalls");
    auto *time = add<oTimeBox>("txtTime");
    show();
    const struct {
        QWidget *box;
        const char *bad;
        const char *good;
        const char *whatFits;
    } cases[] = {
        {date, "31/02/24", "29/02/24", "A date, such as 21/11/26"},
        {amount, "12x", "12.00", "An amount, such as 1200.50"},
        {count, "abc", "12", "A number of no more than 2,147,483,647, such as 12"},
        {count, "3000000000", "2147483647", "A number of no more than 2,147,483,647, such as 12"},
        {time, "1:2:3", "01:30", "A time, such as 1:30, 1.5 or 90"},
        {time, "99999999999", "01:30", "A time, such as 1:30, 1.5 or 90"},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(row.bad, typed(row.box, row.bad));
        EXPECT_TRUE(has(row.box)) << row.bad;
        EXPECT_TRUE(isPink(row.box)) << row.bad;
        EXPECT_EQ(row.bad, inner(row.box)->selectedText().toStdString()) << "the next key replaces it";
        EXPECT_EQ(row.whatFits, inner(row.box)->toolTip().toStdString());
        EXPECT_EQ(row.whatFits, inner(row.box)->accessibleDescription().toStdString());

        EXPECT_EQ(row.good, typed(row.box, row.good));
        EXPECT_TRUE(isWhite(row.box));
        EXPECT_EQ(QString(), inner(row.box)->toolTip());
        EXPECT_EQ(QString(), inner(row.box)->accessibleDescription());
        EXPECT_TRUE(txtOther.hasFocus());
    }
}

TEST_F(TypedBoxes, AnEmptyTimeDoesNotFit)
{
    auto *box = add<oTimeBox>("txtTime");
    show();
    box->setFocus();
    leave();
    EXPECT_TRUE(has(box));
    EXPECT_TRUE(isPink(box));
}

// What is pasted

TEST_F(TypedBoxes, APasteLosesTheBlanksTabsAndLineBreaksAroundIt)
{
    const struct {
        QWidget *box;
        const char *pasted;
        const char *left;
    } cases[] = {
        {add<oDateBox>("txtDate"), "\r\n\t 1.2.24\u00a0\r\n", "01/02/24"},
        {add<oDateBox>("txtLong"), "3\u00a0March\t2024\n", "03/03/24"},
        {add<oDecimalBox>("txtAmount"), "\u00a0£12.5\t\r\n", "12.50"},
        {add<oDecimalBox>("txtComma"), "1,250.00\n", "1.00"},
        {add<oIntegerBox>("txtCalls"), "\t1\u00a0000\r\n", "1000"},
        {add<oTimeBox>("txtTime"), "\u202f1:30\u200b\u2028", "01:30"},
    };
    show();
    for (const auto &row : cases) {
        QApplication::clipboard()->setText(QString::fromUtf8(row.pasted));
        inner(row.box)->setFocus(Qt::TabFocusReason);
        QTest::keyClick(inner(row.box), Qt::Key_V, Qt::ControlModifier);
        leave();
        EXPECT_EQ(row.left, inner(row.box)->text().toStdString()) << row.pasted;
        EXPECT_TRUE(txtOther.hasFocus()) << row.pasted;
    }
}

TEST_F(TypedBoxes, AWordThatIsPastedIntoADateIsHeldAsItWasPasted)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    QApplication::clipboard()->setText(QStringLiteral(" soon\n"));
    inner(box)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(inner(box), Qt::Key_Insert, Qt::ShiftModifier);
    leave();
    EXPECT_EQ(QStringLiteral("soon"), inner(box)->text());
    EXPECT_TRUE(isPink(box));
}

TEST_F(TypedBoxes, TheMenuPastesInTheSameWay)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    QApplication::clipboard()->setText(QStringLiteral("\t1.2.24\r\n"));
    inner(box)->setFocus(Qt::TabFocusReason);
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(5, 5), inner(box)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(inner(box), &asked);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    QTest::keyClick(menu, Qt::Key_P);
    EXPECT_EQ(QStringLiteral("1.2.24"), inner(box)->text());
}

TEST_F(TypedBoxes, ShiftAndF10OpensTheMenuToo)
{
    for (QWidget *box :
        {static_cast<QWidget *>(add<oDateBox>("txtDate")), static_cast<QWidget *>(add<oTimeBox>("txtTime"))}) {
        show();
        inner(box)->setFocus(Qt::TabFocusReason);
        QTest::keyClick(inner(box), Qt::Key_F10);
        EXPECT_FALSE(QApplication::activePopupWidget());
        QTest::keyClick(inner(box), Qt::Key_F10, Qt::ShiftModifier);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        menu->close();
    }
}

TEST_F(TypedBoxes, SoDoesADropAndTheMiddleButton)
{
    auto *box = add<oIntegerBox>("txtCalls");
    show();
    QMimeData dropped;
    dropped.setText(QStringLiteral("\r\n12\t"));
    const QPoint place(5, 5);
    QDragEnterEvent enters(place, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(inner(box), &enters);
    QDropEvent drop(place, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(inner(box), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(QStringLiteral("12"), inner(box)->text());
    if (!QApplication::clipboard()->supportsSelection())
        return; // middle-click pastes only on some desktops
    inner(box)->clear();
    QApplication::clipboard()->setText(QStringLiteral("\t34\n"), QClipboard::Selection);
    QTest::mouseClick(inner(box), Qt::MiddleButton);
    EXPECT_EQ(QStringLiteral("34"), inner(box)->text());
}

TEST_F(TypedBoxes, WhatIsCommittedByAnInputMethodHasPlainBlanks)
{
    auto *box = add<oIntegerBox>("txtCalls");
    show();
    inner(box)->setFocus(Qt::TabFocusReason);
    for (const char *part : {"1", "\u00a0", "000\n"}) {
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(part));
        QCoreApplication::sendEvent(inner(box), &event);
    }
    EXPECT_EQ(QStringLiteral("1 000 "), inner(box)->text());
    QTest::sendKeyEvent(QTest::Press, inner(box), Qt::Key_nobreakspace, QString(QChar(0xa0)), Qt::NoModifier);
    EXPECT_EQ(QStringLiteral("1 000  "), inner(box)->text());
}

// Values that the program writes

TEST_F(TypedBoxes, DatesAndAmountsThatTheProgramWritesAreNormalisedAtOnce)
{
    auto *date = add<oDateBox>("txtDate");
    auto *amount = add<oDecimalBox>("txtAmount");
    date->setText(QStringLiteral("1.2.24"));
    EXPECT_EQ(QStringLiteral("01/02/24"), date->Text());
    amount->setText(QStringLiteral("5"));
    EXPECT_EQ(QStringLiteral("5.00"), amount->Text());
    show();
    date->setText(QStringLiteral("3.4.24"));
    EXPECT_EQ(QStringLiteral("03/04/24"), date->Text());
}

TEST_F(TypedBoxes, CountsAndTimesThatTheProgramWritesAreNot)
{
    auto *count = add<oIntegerBox>("txtCalls");
    auto *time = add<oTimeBox>("txtTime");
    show();
    count->setText(QStringLiteral("1 000"));
    EXPECT_EQ(QStringLiteral("1 000"), count->Text());
    time->setText(QStringLiteral("90"));
    EXPECT_EQ(QStringLiteral("90"), time->Text());
    time->setText(QStringLiteral("abc"));
    EXPECT_TRUE(isWhite(time));
    EXPECT_TRUE(txtOther.hasFocus());
}

TEST_F(TypedBoxes, WhatTheProgramWritesWhileTheUserIsInTheBoxWaitsForLeaving)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    box->setFocus();
    box->setText(QStringLiteral("1.2.24"));
    EXPECT_EQ(QStringLiteral("1.2.24"), box->Text());
    leave();
    EXPECT_EQ(QStringLiteral("01/02/24"), box->Text());
}

TEST_F(TypedBoxes, AValueThatTheProgramWritesAndThatDoesNotFitTakesTheFocus)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    box->setText(QStringLiteral("soon"));
    EXPECT_EQ(QStringLiteral("soon"), box->Text());
    EXPECT_TRUE(isPink(box));
    EXPECT_TRUE(has(box));
}

TEST_F(TypedBoxes, OfTheDisabledOnesOnlyTheDateBoxLetsABadValueBe)
{
    auto *date = add<oDateBox>("txtDate");
    auto *amount = add<oDecimalBox>("txtAmount");
    show();
    date->setEnabled(false);
    amount->setEnabled(false);
    date->setText(QStringLiteral("soon"));
    EXPECT_TRUE(isWhite(date) || !inner(date)->property("invalid").toBool());
    amount->setText(QStringLiteral("much"));
    EXPECT_TRUE(isPink(amount));
    EXPECT_TRUE(txtOther.hasFocus());
    // The visible result: the background to the left of the text, and the sign at the right end of the invalid box.
    const auto paper
        = [](QWidget *box) { return inner(box)->grab().toImage().pixelColor(4, inner(box)->height() / 2); };
    const auto hasSign = [](QWidget *box) {
        const QImage picture = inner(box)->grab().toImage();
        const int side = Theme::scaled(16);
        for (int x = picture.width() - Theme::Space8 - side; x < picture.width() - Theme::Space8; ++x)
            for (int y = Theme::Space4; y < picture.height() - Theme::Space4; ++y)
                if (picture.pixelColor(x, y) == Theme::Red)
                    return true;
        return false;
    };
    EXPECT_EQ(Theme::Canvas, paper(date));
    EXPECT_FALSE(hasSign(date));
    EXPECT_EQ(Theme::Pink, paper(amount));
    EXPECT_TRUE(hasSign(amount));
}

// The date box's tick

TEST_F(TypedBoxes, TheTickIsHiddenUnlessAskedForAndTickedAtFirst)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    EXPECT_FALSE(box->ShowTickBox());
    EXPECT_FALSE(tickOf(box)->isVisible());
    EXPECT_TRUE(tickOf(box)->isChecked());
    EXPECT_EQ(QString(), box->Text()) << "without a tick an empty box gives an empty text";
    box->setShowTickBox(true);
    EXPECT_TRUE(tickOf(box)->isVisible());
    EXPECT_EQ(QStringLiteral("31/12/29"), box->Text());
}

TEST_F(TypedBoxes, TheNoDateValueShowsAsUntickedAndEmpty)
{
    auto *box = add<oDateBox>("txtDate");
    box->setShowTickBox(true);
    show();
    box->setText(QStringLiteral("31/12/29"));
    EXPECT_FALSE(tickOf(box)->isChecked());
    EXPECT_FALSE(inner(box)->isEnabled());
    EXPECT_EQ(QString(), inner(box)->text());
    EXPECT_EQ(QStringLiteral("31/12/29"), box->Text());
    box->setText(QStringLiteral("31/12/29"));
    EXPECT_EQ(QString(), inner(box)->text()) << "a second time too";
}

TEST_F(TypedBoxes, TheNoDateValueDisablesABoxWithoutATickToo)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    box->setText(QStringLiteral("31/12/29"));
    EXPECT_FALSE(inner(box)->isEnabled());
    EXPECT_EQ(QString(), box->Text());
}

TEST_F(TypedBoxes, TickingWritesTodayAndMovesTheFocusThere)
{
    auto *box = add<oDateBox>("txtDate");
    box->setShowTickBox(true);
    show();
    box->setText(QStringLiteral("31/12/29"));
    press(tickOf(box));
    EXPECT_TRUE(inner(box)->isEnabled());
    EXPECT_TRUE(has(box));
    EXPECT_EQ(QStringLiteral("21/11/2026"), inner(box)->text());
    leave();
    EXPECT_EQ(QStringLiteral("21/11/26"), box->Text());
    press(tickOf(box));
    EXPECT_FALSE(inner(box)->isEnabled());
    EXPECT_EQ(QString(), inner(box)->text());
    EXPECT_EQ(QStringLiteral("31/12/29"), box->Text());
}

TEST_F(TypedBoxes, UntickingIsAWayOutOfABadDate)
{
    auto *box = add<oDateBox>("txtDate");
    box->setShowTickBox(true);
    show();
    typed(box, "31/02/24");
    ASSERT_TRUE(isPink(box));
    press(tickOf(box));
    EXPECT_FALSE(tickOf(box)->isChecked());
    EXPECT_FALSE(inner(box)->property("invalid").toBool());
    leave();
    EXPECT_TRUE(txtOther.hasFocus());
}

// The time box

TEST_F(TypedBoxes, ForceFormatNormalisesOrRefuses)
{
    auto *box = add<oTimeBox>("txtTime");
    show();
    box->setText(QStringLiteral("90"));
    EXPECT_TRUE(box->ForceFormat());
    EXPECT_EQ(QStringLiteral("01:30"), box->Text());
    EXPECT_TRUE(txtOther.hasFocus());
    box->setText(QStringLiteral("abc"));
    EXPECT_FALSE(box->ForceFormat());
    EXPECT_TRUE(isPink(box));
    EXPECT_TRUE(has(box));
}

TEST_F(TypedBoxes, AKeyPressPassesOnItsCharacter)
{
    auto *box = add<oTimeBox>("txtTime");
    show();
    QSignalSpy keys(box, &oTimeBox::KeyPress);
    box->setFocus();
    QTest::keyClick(inner(box), Qt::Key_9);
    QTest::keyClick(inner(box), Qt::Key_Left);
    QTest::keyClick(inner(box), Qt::Key_Return);
    ASSERT_EQ(2, keys.size()) << "a key without a character is none";
    EXPECT_EQ('9', keys[0][0].toInt());
    EXPECT_EQ(13, keys[1][0].toInt());
}

TEST_F(TypedBoxes, AListenerToAKeyPressMayCloseTheScreen)
{
    QDialog other;
    auto *box = new oTimeBox(&other);
    QObject::connect(box, &oTimeBox::KeyPress, &screen, [box] { delete box; });
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(inner(box), Qt::Key_Return);
    EXPECT_TRUE(other.findChildren<oTimeBox *>().isEmpty());
}
