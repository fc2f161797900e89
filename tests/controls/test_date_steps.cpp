#include "controls/oDateBox.h"
#include "tests/controls/clsBoxWindow.h"

namespace {

class DateSteps : public BoxWindow {
protected:
    DateSteps() { show(); }

    /// The text of the box after typing a text and pressing a key a number of times.
    QString stepped(const char *text, Qt::Key key, int times = 1)
    {
        type(&box, text);
        for (int n = 0; n < times; ++n)
            QTest::keyClick(inner(&box), key);
        return inner(&box)->text();
    }
    oDateBox &box = *add<oDateBox>("txtDate");
};

} // namespace

TEST_F(DateSteps, UpIsTheNextDayAndDownTheOneBefore)
{
    EXPECT_EQ(QStringLiteral("13/12/25"), stepped("12/12/25", Qt::Key_Up));
    EXPECT_EQ(QStringLiteral("11/12/25"), stepped("12/12/25", Qt::Key_Down));
    EXPECT_EQ(QStringLiteral("01/03/24"), stepped("28/2/2024", Qt::Key_Up, 2)) << "2024 is a leap year";
    EXPECT_EQ(QStringLiteral("31/12/25"), stepped("1/1/26", Qt::Key_Down));
}

TEST_F(DateSteps, TheDayThatMeansNoDateIsPassedOver)
{
    EXPECT_EQ(QStringLiteral("01/01/30"), stepped("30/12/29", Qt::Key_Up));
    EXPECT_EQ(QStringLiteral("30/12/29"), stepped("1/1/2030", Qt::Key_Down));
}

TEST_F(DateSteps, WhatIsNoDateStays)
{
    EXPECT_EQ(QStringLiteral("soon"), stepped("soon", Qt::Key_Up));
    inner(&box)->clear();
    QTest::keyClick(inner(&box), Qt::Key_Down);
    EXPECT_EQ(QString(), inner(&box)->text());
    type(&box, "12/12/25");
    QTest::keyClick(inner(&box), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(QStringLiteral("12/12/25"), inner(&box)->text());
}

TEST_F(DateSteps, TheYearLastUsedStays)
{
    auto *other = add<oDateBox>("txtOtherDate");
    other->show();
    EXPECT_EQ("31/12/24", typed(other, "31/12/24"));
    EXPECT_EQ(QStringLiteral("01/01/25"), stepped("31/12", Qt::Key_Up));
    leave();
    EXPECT_EQ(QStringLiteral("01/01/25"), inner(&box)->text());
    EXPECT_EQ("05/06/24", typed(other, "5/6"));
    EXPECT_EQ("01/01/25", typed(other, "01/01/25"));
    EXPECT_EQ("05/06/25", typed(other, "5/6")) << "what is typed counts, also where a step gave the same date";
}

TEST_F(DateSteps, TheNextTypedDateTakesThePlaceOfTheStep)
{
    stepped("12/12/25", Qt::Key_Up);
    QTest::keyClicks(inner(&box), QStringLiteral("1/2/26"));
    EXPECT_EQ(QStringLiteral("1/2/26"), inner(&box)->text());
}
