#include "base/mdClock.h"
#include "controls/oBoxNote.h"
#include "controls/oCustomButton.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "tests/controls/clsBoxWindow.h"

#include <QClipboard>
#include <QResizeEvent>

namespace {

class BoxNotes : public BoxWindow {
protected:
    BoxNotes()
    {
        SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
        screen.resize(640, 300);
    }
    ~BoxNotes() override { SetClock({}); }

    static std::string words(const QWidget *box)
    {
        const oBoxNote *note = oBoxNote::of(*box);
        return note ? note->Words().toStdString() : "";
    }
    static oCustomButton *use(const QWidget *box) { return oBoxNote::of(*box)->findChild<oCustomButton *>(); }
};

constexpr char ReadAsOne[] = "Typed 1,250, read as 1.00: amounts take no comma";

} // namespace

TEST_F(BoxNotes, TellHowAnAmountWasReadOnceItIsLeft)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    type(box, "1,250");
    EXPECT_EQ("", words(box)) << "not while somebody types";
    leave();
    EXPECT_EQ("1.00", inner(box)->text().toStdString());
    EXPECT_EQ(ReadAsOne, words(box));
    EXPECT_TRUE(oBoxNote::of(*box)->isVisible());
    EXPECT_TRUE(isWhite(box)) << "the value is valid";
    EXPECT_EQ(ReadAsOne, inner(box)->accessibleDescription().toStdString());
}

TEST_F(BoxNotes, GoAtTheNextChangeOfTheBox)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    typed(box, "1,250");
    inner(box)->setFocus(Qt::TabFocusReason);
    leave();
    EXPECT_EQ(ReadAsOne, words(box)) << "entered and left, not changed";
    type(box, "2");
    EXPECT_EQ("", words(box));
    EXPECT_EQ(QString(), inner(box)->accessibleDescription());
    leave();
    EXPECT_EQ("", words(box));
}

TEST_F(BoxNotes, OfferWhatWasProbablyMeant)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    typed(box, "1,250");
    EXPECT_EQ(QStringLiteral("Use 1250.00"), use(box)->Caption());
    press(use(box));
    EXPECT_EQ("1250.00", inner(box)->text().toStdString());
    EXPECT_TRUE(has(box)) << "as if typed: the box is left by the user, with its checks";
    leave();
    EXPECT_EQ("1250.00", box->Text().toStdString());
    EXPECT_EQ("", words(box));
}

TEST_F(BoxNotes, AreReachedByTheTabKeyBehindTheirBox)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    typed(box, "1,250");
    inner(box)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(inner(box), Qt::Key_Tab);
    ASSERT_TRUE(use(box)->hasFocus());
    QTest::keyClick(use(box), Qt::Key_Space);
    EXPECT_EQ("1250.00", inner(box)->text().toStdString());
}

TEST_F(BoxNotes, OfferNothingForADate)
{
    auto *box = add<oDateBox>("txtDate");
    show();
    typed(box, "1/2/1850");
    EXPECT_EQ("Typed 1/2/1850, read as 01/02/50: a year keeps its last two figures", words(box));
    EXPECT_FALSE(use(box));
    typed(box, "31/12/29");
    EXPECT_EQ("Stands for no date", words(box));
}

TEST_F(BoxNotes, AreNotForWhatTheProgramWrites)
{
    auto *amount = add<oDecimalBox>("txtAmount");
    auto *date = add<oDateBox>("txtDate");
    show();
    amount->setText(QStringLiteral("1,250"));
    EXPECT_EQ("1.00", amount->Text().toStdString());
    EXPECT_EQ("", words(amount));
    date->setText(QStringLiteral("1/2"));
    EXPECT_EQ("", words(date));
}

TEST_F(BoxNotes, GoWhenTheProgramWritesAnotherValue)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    typed(box, "1,250");
    box->setText(QStringLiteral("5.00"));
    EXPECT_EQ("", words(box));
}

TEST_F(BoxNotes, AreToldOfAPasteAsOfTyping)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    QGuiApplication::clipboard()->setText(QString::fromUtf8(" \t£1,250.00\u00a0\r\n"));
    inner(box)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(inner(box), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ("£1,250.00", inner(box)->text().toStdString()) << "without what stood around it";
    leave();
    EXPECT_EQ("Typed £1,250.00, read as 1.00: amounts take no comma", words(box));
}

TEST_F(BoxNotes, MoveNothing)
{
    auto *box = add<oDecimalBox>("txtAmount");
    auto *other = add<oDecimalBox>("txtOther");
    show();
    const QRect before = box->geometry();
    const QRect below = other->geometry();
    typed(box, "1,250");
    QTest::qWait(20);
    EXPECT_EQ(before, box->geometry());
    EXPECT_EQ(below, other->geometry());
}

TEST_F(BoxNotes, TakeNoNoticeOfTheirBoxOnceTheyAreGone)
{
    auto *box = add<oDecimalBox>("txtAmount");
    show();
    typed(box, "1,250");
    oBoxNote::Clear(*box);
    // Before the deferred deletion of the note.
    box->resize(box->size() + QSize(1, 0));
    QResizeEvent wider(screen.size(), screen.size());
    QCoreApplication::sendEvent(&screen, &wider);
    QCoreApplication::sendEvent(box, &wider);
    EXPECT_EQ("", words(box));
}
