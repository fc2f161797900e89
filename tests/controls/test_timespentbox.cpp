#include "controls/oTimeBox.h"
#include "controls/oTimeSpentBox.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/controls/clsBoxWindow.h"

#include <QTimer>

namespace {

class TheClock : public BoxWindow {
protected:
    TheClock()
    {
        Form = std::make_unique<clsZR3Form>();
        clock = add<oTimeSpentBox>("clock");
        txtTime = clock->findChild<oTimeBox *>(QStringLiteral("txtTime"));
        cmdStartStop = clock->findChild<QPushButton *>(QStringLiteral("cmdStartStop"));
        tmrTimer = clock->findChild<QTimer *>(QStringLiteral("tmrTimer"));
        show();
    }
    ~TheClock() override { Form.reset(); }

    /// Lets a minute pass.
    void minute() { QMetaObject::invokeMethod(tmrTimer, "timeout"); }

    oTimeSpentBox *clock;
    oTimeBox *txtTime;
    QPushButton *cmdStartStop;
    QTimer *tmrTimer;
};

} // namespace

TEST_F(TheClock, StandsAtFirst)
{
    EXPECT_EQ(60'000, tmrTimer->interval());
    EXPECT_FALSE(tmrTimer->isActive());
    EXPECT_TRUE(txtTime->isEnabled());
    EXPECT_EQ(QStringLiteral("Start"), cmdStartStop->text());
    EXPECT_EQ(nullptr, TimeSpentBox) << "the main window says which one it is";
}

TEST_F(TheClock, TheButtonStartsAndStopsIt)
{
    press(cmdStartStop);
    EXPECT_TRUE(tmrTimer->isActive());
    EXPECT_FALSE(txtTime->isEnabled()) << "disabled while the clock runs";
    EXPECT_EQ(QStringLiteral("Stop"), cmdStartStop->text());
    press(cmdStartStop);
    EXPECT_FALSE(tmrTimer->isActive());
    EXPECT_TRUE(txtTime->isEnabled());
    EXPECT_EQ(QStringLiteral("Start"), cmdStartStop->text());
    clock->StartTimer();
    EXPECT_TRUE(tmrTimer->isActive());
    clock->StopTimer();
    EXPECT_FALSE(tmrTimer->isActive());
}

TEST_F(TheClock, TheButtonKeepsItsWidth)
{
    const int width = cmdStartStop->width();
    clock->StartTimer();
    screen.layout()->activate();
    EXPECT_EQ(width, cmdStartStop->width());
}

TEST_F(TheClock, EachMinuteGoesToTheClaim)
{
    clock->setTimeSpent(QStringLiteral("00:58"));
    clock->StartTimer();
    EXPECT_EQ(QStringLiteral("00:00"), Form->TimeSpent());
    minute();
    EXPECT_EQ(QStringLiteral("00:59"), clock->TimeSpent());
    EXPECT_EQ(QStringLiteral("00:59"), Form->TimeSpent());
    minute();
    EXPECT_EQ(QStringLiteral("01:00"), clock->TimeSpent());
    EXPECT_EQ(QStringLiteral("01:00"), Form->TimeSpent());
}

TEST_F(TheClock, ATimeThatIsNoneIsLeftAloneByTheMinute)
{
    for (const char *text : {"", "abc", "90", "35791394:07"}) {
        clock->setTimeSpent(QLatin1String(text));
        minute();
        EXPECT_EQ(text, clock->TimeSpent().toStdString());
        EXPECT_EQ(QStringLiteral("00:00"), Form->TimeSpent());
    }
}

TEST_F(TheClock, GoesOnWithoutAClaim)
{
    Form.reset();
    clock->setTimeSpent(QStringLiteral("00:00"));
    minute();
    EXPECT_EQ(QStringLiteral("00:01"), clock->TimeSpent());
}

TEST_F(TheClock, ATypedTimeGoesToTheClaimOnLeaving)
{
    type(txtTime, "90");
    EXPECT_EQ(QStringLiteral("00:00"), Form->TimeSpent());
    leave();
    EXPECT_EQ(QStringLiteral("01:30"), Form->TimeSpent());
    typed(txtTime, "abc");
    EXPECT_EQ(QStringLiteral("01:30"), Form->TimeSpent()) << "a held box was not left";
}

TEST_F(TheClock, ARefreshDoesNotOverwriteWhatTheUserTypes)
{
    type(txtTime, "90");
    clock->setTimeSpent(QStringLiteral("00:05"));
    EXPECT_EQ(QStringLiteral("90"), clock->TimeSpent());
    leave();
    clock->setTimeSpent(QStringLiteral("00:05"));
    EXPECT_EQ(QStringLiteral("00:05"), clock->TimeSpent());
}

TEST_F(TheClock, ARefreshOnTheReturnToTheWindowDoesNotEither)
{
    type(txtTime, "90");
    QDialog front;
    front.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    clock->setTimeSpent(QStringLiteral("00:05"));
    EXPECT_EQ(QStringLiteral("90"), clock->TimeSpent());
}
