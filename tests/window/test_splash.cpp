#include "shell/frmSplash.h"

#include "base/clsQuietUserInterface.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetVersionInfo.h"
#include "tests/window/clsWindowTest.h"

#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

namespace {

class Splash : public clsWindowTest {
protected:
    void SetUp() override
    {
        clsWindowTest::SetUp();
        SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
        splash = std::make_unique<frmSplash>();
        timer = &control<QTimer>(*splash, "tmrInit");
    }
    void TearDown() override
    {
        splash.reset();
        clsWindowTest::TearDown();
    }

    QString storedPath() const { return GetDatabasePath(); }

    std::unique_ptr<frmSplash> splash;
    QTimer *timer = nullptr;
};

} // namespace

TEST_F(Splash, TellsTheMakerTheYearAndTheVersion)
{
    EXPECT_EQ(QStringLiteral("Copyright 2026 Velmor | Version ") + GetVersionInfo(),
        control<QLabel>(*splash, "lblVersion").text());
    EXPECT_EQ(QStringLiteral("Loading, please wait"), control<QLabel>(*splash, "lblLoading").text());
}

TEST_F(Splash, AsksForTheMainWindowAfterItsTimeAndOnce)
{
    EXPECT_EQ(750, timer->interval());
    EXPECT_TRUE(timer->isActive());
    const QSignalSpy asked(splash.get(), &frmSplash::Initialised);
    timer->setInterval(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked.count() > 0; }, 2000));
    EXPECT_FALSE(timer->isActive());
    QTest::qWait(20);
    EXPECT_EQ(1, asked.count());
}

TEST_F(Splash, TakesTheFocusAtOnce)
{
    show(*splash);
    EXPECT_EQ(splash.get(), QApplication::focusWidget());
}

TEST_F(Splash, PSelectsTheDatabaseFolder)
{
    QDir(folder.path()).mkpath(QStringLiteral("elsewhere"));
    user.folders = {path("elsewhere")};
    QTest::keyClick(splash.get(), Qt::Key_P);
    EXPECT_EQ(QStringList("Please select a valid database folder"), user.prompts);
    EXPECT_EQ(path("elsewhere"), storedPath());
    EXPECT_TRUE(timer->isActive());
}

TEST_F(Splash, PCancelledChangesNothing)
{
    QTest::keyClick(splash.get(), Qt::Key_P);
    EXPECT_EQ(1, user.prompts.size());
    EXPECT_EQ(path("program/Databases"), storedPath());
    EXPECT_TRUE(timer->isActive());
}

TEST_F(Splash, RResetsTheDatabaseFolderOnYesOnly)
{
    QDir(folder.path()).mkpath(QStringLiteral("elsewhere"));
    SetDatabasePath(path("elsewhere"));
    user.answers = {clsUserInterface::No};
    QTest::keyClick(splash.get(), Qt::Key_R);
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Reset"), user.messages[0].title);
    EXPECT_EQ(
        QStringLiteral("This function will reset the database path to the standard setting. Are you sure you wish "
                       "to continue?"),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::YesNo, user.messages[0].buttons);
    EXPECT_TRUE(user.messages[0].system);
    EXPECT_EQ(path("elsewhere"), storedPath());
    EXPECT_TRUE(timer->isActive());

    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(splash.get(), Qt::Key_R);
    EXPECT_EQ(path("program/Databases"), storedPath());
}

TEST_F(Splash, DMakesTheDatabases)
{
    QDir(folder.path()).mkpath(QStringLiteral("fresh"));
    user.folders = {path("fresh")};
    QTest::keyClick(splash.get(), Qt::Key_D);
    EXPECT_EQ(QStringList("Please select or create a database folder"), user.prompts);
    EXPECT_TRUE(QFile::exists(path("fresh/Preferences Database.vzp")));
    EXPECT_EQ(path("fresh"), storedPath());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Databases"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("The databases have been created successfully"), user.messages[0].text);
}

TEST_F(Splash, DCancelledChangesNothing)
{
    QTest::keyClick(splash.get(), Qt::Key_D);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(path("program/Databases"), storedPath());
    EXPECT_TRUE(timer->isActive());
}

TEST_F(Splash, CapitalsAndOtherKeysOnlyRestartTheTimer)
{
    for (const char16_t capital : {u'P', u'R', u'D'})
        QTest::sendKeyEvent(QTest::Press, splash.get(), Qt::Key(capital), QString(capital), Qt::ShiftModifier);
    // With Control held, a letter's key has a control character as its text.
    QTest::sendKeyEvent(QTest::Press, splash.get(), Qt::Key_P, QString(QChar(16)), Qt::ControlModifier);
    QTest::keyClick(splash.get(), Qt::Key_Shift);
    timer->stop();
    QTest::keyClick(splash.get(), Qt::Key_X);
    EXPECT_TRUE(user.prompts.isEmpty());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(timer->isActive());
}

TEST_F(Splash, TheTimerStandsStillWhileACommandRuns)
{
    struct clsWatching final : clsQuietUserInterface {
        QString chooseFolder(const QString &, const QString &) override
        {
            ranDuring = timer->isActive();
            ++asked;
            return {};
        }
        QTimer *timer = nullptr;
        bool ranDuring = true;
        int asked = 0;
    } watching;
    watching.timer = timer;
    const clsUserInterfaceScope scope(watching);
    QTest::keyClick(splash.get(), Qt::Key_P);
    EXPECT_EQ(1, watching.asked);
    EXPECT_FALSE(watching.ranDuring);
    EXPECT_TRUE(timer->isActive());
}

TEST_F(Splash, KeysAreNothingToItOnceTheMainWindowIsBeingMade)
{
    timer->setInterval(0);
    const QSignalSpy asked(splash.get(), &frmSplash::Initialised);
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked.count() == 1; }, 2000));
    QTest::keyClick(splash.get(), Qt::Key_P);
    EXPECT_TRUE(user.prompts.isEmpty());
    EXPECT_FALSE(timer->isActive());
}

TEST_F(Splash, StepsBelowTheScreenAndHides)
{
    show(*splash);
    splash->StepAside();
    EXPECT_FALSE(splash->isVisible());
    EXPECT_GT(splash->y(), splash->screen()->geometry().bottom());
}
