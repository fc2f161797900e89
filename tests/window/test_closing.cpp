#include "shell/clsLongWork.h"
#include "tests/window/clsMainWindowTest.h"

#include <QSignalSpy>
#include <QTimer>

#include <cerrno>

// Leaving the main window: the questions, the copies if a save fails, and what keeps it open.

namespace {

class Closing : public clsMainWindowTest { };

} // namespace

TEST_F(Closing, AClaimWhoseSaveFailsOnClosingIsSetAside)
{
    const QString claim = savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    user.answers = {clsUserInterface::Yes};
    EXPECT_TRUE(window->close());
    FileSystem().faultPoint = nullptr;
    ASSERT_EQ(3u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Save?"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[1].title);
    const QString told = QStringLiteral("A copy of your claim, whose last save failed, is in:\r\n\r\n");
    ASSERT_TRUE(user.messages[2].text.startsWith(told));
    QFile copy(user.messages[2].text.mid(told.size()));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly)) << qPrintable(copy.fileName());
    EXPECT_TRUE(copy.readAll().contains("Hartwell"));
}

TEST_F(Closing, AClaimWhoseSaveFailedBeforeIsSetAsideOnClosing)
{
    const QString claim = savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    ASSERT_TRUE(QDir().rename(QFileInfo(claim).path(), QFileInfo(claim).path() + QStringLiteral(" pulled out")));
    window->Save();
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
    EXPECT_TRUE(window->close());
    ASSERT_EQ(2u, user.messages.size());
    const QString told = QStringLiteral("A copy of your claim, whose last save failed, is in:\r\n\r\n");
    ASSERT_TRUE(user.messages[1].text.startsWith(told)) << qPrintable(user.messages[1].text);
    QFile copy(user.messages[1].text.mid(told.size()));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly)) << qPrintable(copy.fileName());
    EXPECT_TRUE(copy.readAll().contains("Hartwell"));
}

TEST_F(Closing, AClaimThatCanBeWrittenNowhereIsToldOnceAndTheProgramCloses)
{
    qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
    savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    const QSignalSpy closed(window.get(), &frmMain::Closed);
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Write ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    user.answers = {clsUserInterface::Yes};
    EXPECT_TRUE(window->close());
    FileSystem().faultPoint = nullptr;
    qunsetenv("XDG_STATE_HOME");
    ASSERT_EQ(3u, user.messages.size());
    EXPECT_EQ(QStringLiteral("No copy of your claim could be written. The program tried these folders:\r\n\r\n")
            + path("program/Databases/Recovered") + QStringLiteral("\r\n") + path("state/Velmor/Recovered"),
        user.messages[2].text);
    EXPECT_EQ(1, closed.count());
}

TEST_F(Closing, NoOnClosingSetsNothingAside)
{
    savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    user.answers = {clsUserInterface::No};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_FALSE(QFile::exists(path("program/Databases/Recovered")));
}

TEST_F(Closing, ClosingACleanClaimEndsTheProgram)
{
    start();
    const QSignalSpy closed(window.get(), &frmMain::Closed);
    entry("mnuExit").trigger();
    EXPECT_EQ(1, closed.count());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Closing, CancelAtTheSaveQuestionLeavesEverythingAsItWas)
{
    start();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    const QString before = Form->XMLOutput();
    const QSignalSpy closed(window.get(), &frmMain::Closed);
    user.answers = {clsUserInterface::Cancel};
    EXPECT_FALSE(window->close());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Save?"), user.messages[0].title);
    EXPECT_EQ(0, closed.count());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(before, Form->XMLOutput());

    user.answers = {clsUserInterface::No};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(1, closed.count());
}

TEST_F(Closing, TheEndIsLogged)
{
    writePreferences({"Log"});
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 22)); });
    QFile log(path("program/Logs/21-11-2026.txt"));
    ASSERT_TRUE(log.open(QIODevice::ReadWrite));
    start();
    window->close();
    const QByteArray text = log.readAll();
    EXPECT_TRUE(text.contains(" : frmMain Opened\r\n"));
    EXPECT_TRUE(text.endsWith(
        QByteArray("21/11/2026 14:03:22 : Program Ended\r\n") + QByteArray(110, '#') + QByteArray("\r\n")));
}

TEST_F(Closing, LongWorkHoldsTheCloseAndTheBackup)
{
    QDir(folder.path()).mkpath(QStringLiteral("backups"));
    start();
    Preferences->AutoBackupPath = path("backups");
    auto &timer = control<QTimer>(*window, "tmrAutoBackup");
    EXPECT_EQ(10000, timer.interval());
    EXPECT_TRUE(timer.isActive());
    QDateTime now(QDate(2026, 11, 21), QTime(14, 0));
    SetClock([&now] { return now; });
    window->tmrAutoBackup_Timer();
    now = now.addSecs(600);
    {
        const clsLongWork work;
        window->tmrAutoBackup_Timer();
        EXPECT_TRUE(QDir(path("backups")).isEmpty());
        EXPECT_FALSE(window->close());
    }
    window->tmrAutoBackup_Timer();
    EXPECT_FALSE(QDir(path("backups")).isEmpty());
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(timer.isActive());
}
