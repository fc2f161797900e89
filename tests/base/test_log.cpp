#include "base/mdRegistry.h"
#include "base/mdTextDocumentHandling.h"
#include "tests/base/clsShellTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

class Log : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        SetClock([] { return QDateTime(QDate(2026, 11, 15), QTime(14, 3, 22, 900)); });
        day = path("program/Logs/15-11-2026.txt");
    }
    void switchOn()
    {
        SetLogSwitch([this] { return on; });
        on = true;
    }

    bool on = false;
    QString day;
};

} // namespace

TEST_F(Log, BeforeThePreferencesExistNothingIsDoneAndNoFolderTouched)
{
    WriteLog(QStringLiteral("frmSplash Opened"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(exists(path("program/Logs")));
}

TEST_F(Log, WithTheSwitchOffNothingIsDone)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    on = false;
    WriteLog(QStringLiteral("frmMain Opened"));
    EXPECT_FALSE(exists(day));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Log, TheSwitchIsAskedAtEachLine)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    WriteLog(QStringLiteral("one"));
    on = false;
    WriteLog(QStringLiteral("two"));
    on = true;
    WriteLog(QStringLiteral("three"));
    EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : one\r\n15/11/2026 14:03:22 : three\r\n"), bytesOf(day));
}

TEST_F(Log, TheFirstLineOfADayMeetsAMissingFile)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    WriteLog(QStringLiteral("frmMain Opened"));
    expectOneBox("File Not Read",
        QStringLiteral("There was a problem reading the following path:\r\n\r\n") + day
            + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n53 - File not found"));
    EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : frmMain Opened\r\n"), bytesOf(day));
    EXPECT_EQ(day, LogPath());
    user.messages.clear();
    WriteLog(QStringLiteral("frmAbout Opened"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(
        QByteArray("15/11/2026 14:03:22 : frmMain Opened\r\n15/11/2026 14:03:22 : frmAbout Opened\r\n"), bytesOf(day));
    EXPECT_FALSE(exists(day + u'a'));
}

TEST_F(Log, AMissingFolderShowsBothBoxesForEachLine)
{
    switchOn();
    for (size_t line = 1; line <= 2; ++line) {
        WriteLog(QStringLiteral("frmMain Opened"));
        ASSERT_EQ(2 * line, user.messages.size());
        EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[2 * line - 2].title);
        EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[2 * line - 1].title);
    }
    EXPECT_FALSE(exists(path("program/Logs")));
}

TEST_F(Log, WhereOnlyAnAdministratorMayWriteItLiesWithThePreferences)
{
    for (const char *name : {"program/Logs", "own", "config/Velmor"})
        make(QString::fromUtf8(name));
    put(path("config/Velmor/ZR3.conf"), "[General]\nDatabase%20Path=" + QFile::encodeName(path("own")) + '\n');
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0755));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("own")).constData(), 0777));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("program/Logs")).constData(), 0555));
    switchOn();
    const auto boxes = [this] {
        WriteLog(QStringLiteral("one")); // the first of the day
        user.messages.clear();
        WriteLog(QStringLiteral("two"));
        return int(user.messages.size());
    };
    EXPECT_EQ(0, resultAsOrdinaryUser(boxes));
    EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : one\r\n15/11/2026 14:03:22 : two\r\n"),
        bytesOf(path("own/Logs/15-11-2026.txt")));
    EXPECT_FALSE(exists(day));
}

namespace {

mode_t modeOf(const QString &at)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(at).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

/// A database folder shared by two users.
class SharedLog : public Log {
protected:
    void SetUp() override
    {
        Log::SetUp();
        if (::geteuid() != 0)
            GTEST_SKIP() << "only the administrator can be two users";
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
        for (const char *name : {"program/Logs", "shared", "state", "config/Velmor"})
            make(QString::fromUtf8(name));
        put(path("config/Velmor/ZR3.conf"), "[General]\nDatabase%20Path=" + QFile::encodeName(path("shared")) + '\n');
        for (const char *name : {".", "program", "config", "config/Velmor"})
            setMode(name, 0755);
        setMode("state", 0777);
        setMode("shared", 0777);
        setMode("program/Logs", 0555);
        switchOn();
    }
    void setMode(const char *name, mode_t mode) const
    {
        ASSERT_EQ(0, ::chmod(QFile::encodeName(path(name)).constData(), mode)) << name;
    }
    /// Writes two lines and returns the number of boxes shown.
    int boxesOfTwoLines(uid_t who)
    {
        return resultAsOrdinaryUser(
            [this] {
                WriteLog(QStringLiteral("one"));
                WriteLog(QStringLiteral("two"));
                return int(user.messages.size());
            },
            who);
    }
    /// The first user's lines show the box for a new day's file.
    void firstUserWrites() { EXPECT_EQ(1, boxesOfTwoLines(OrdinaryUser)); }
    void expectLog(const QString &below) const
    {
        EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : one\r\n15/11/2026 14:03:22 : two\r\n"),
            bytesOf(below + QStringLiteral("/15-11-2026.txt")))
            << qPrintable(below);
    }
    /// The folder of a user without an account, named after the user's number.
    static QString second() { return u'/' + QString::number(SecondUser); }
};

TEST_F(SharedLog, TheSecondUserOfADatabaseFolderHasAFolderBelowIt)
{
    firstUserWrites();
    EXPECT_EQ(mode_t(0777), modeOf(path("shared/Logs"))) << "as the folder in which it lies";
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    expectLog(path("shared/Logs"));
    expectLog(path("shared/Logs") + second());
    EXPECT_EQ(mode_t(0700), modeOf(path("shared/Logs") + second()));
    EXPECT_FALSE(exists(path("state/Velmor")));
}

TEST_F(SharedLog, TheGroupOfADatabaseFolderHasItsLogs)
{
    ASSERT_EQ(0, ::chown(QFile::encodeName(path("shared")).constData(), OrdinaryUser, OrdinaryUser));
    setMode("shared", 02770);
    firstUserWrites();
    EXPECT_EQ(mode_t(02770), modeOf(path("shared/Logs")));
}

TEST_F(SharedLog, TheSecondUserOfTheProgramsFolderHasAFolderBelowIt)
{
    setMode("program/Logs", 0777);
    firstUserWrites();
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    expectLog(path("program/Logs"));
    expectLog(path("program/Logs") + second());
    EXPECT_FALSE(exists(path("shared/Logs")));
}

TEST_F(SharedLog, ADaysFileThatBothCanWriteIsTheOne)
{
    setMode("program/Logs", 0777);
    put(day, "");
    setMode("program/Logs/15-11-2026.txt", 0666);
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser)) << "the day has begun";
    EXPECT_EQ(0, boxesOfTwoLines(OrdinaryUser));
    EXPECT_EQ(4, bytesOf(day).count("\r\n"));
}

TEST_F(SharedLog, LogsThatAreClosedToTheSecondUserAreReplacedByTheirOwn)
{
    firstUserWrites();
    setMode("shared/Logs", 0755); // as created by an earlier version
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    expectLog(path("state/Velmor/Logs"));
    EXPECT_EQ(mode_t(0700), modeOf(path("state/Velmor")));
}

TEST_F(SharedLog, ALinkThatAnotherUserHasPutThereIsNotFollowed)
{
    put(path("letter"), "Dear Sirs");
    setMode("letter", 0666);
    make(QStringLiteral("shared/Logs"));
    setMode("shared/Logs", 0777);
    const QByteArray link = QFile::encodeName(path("shared/Logs/15-11-2026.txt"));
    ASSERT_EQ(0, ::symlink(QFile::encodeName(path("letter")).constData(), link.constData()));
    ASSERT_EQ(0, ::lchown(link.constData(), OrdinaryUser, OrdinaryUser));
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    EXPECT_EQ(QByteArray("Dear Sirs"), bytesOf(path("letter")));
    expectLog(path("shared/Logs") + second());
}

TEST_F(SharedLog, NeitherIsOneInPlaceOfTheLogs)
{
    make(QStringLiteral("trap"));
    setMode("trap", 0777);
    const QByteArray link = QFile::encodeName(path("shared/Logs"));
    ASSERT_EQ(0, ::symlink(QFile::encodeName(path("trap")).constData(), link.constData()));
    ASSERT_EQ(0, ::lchown(link.constData(), OrdinaryUser, OrdinaryUser));
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    EXPECT_TRUE(QDir(path("trap")).isEmpty());
    expectLog(path("state/Velmor/Logs"));
}

TEST_F(SharedLog, AFolderOfTheUsersNameThatAnotherUserHasMadeIsNotUsed)
{
    firstUserWrites();
    make(QStringLiteral("shared/Logs") + second());
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("shared/Logs") + second()).constData(), 0777));
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    EXPECT_FALSE(exists(path("shared/Logs") + second() + QStringLiteral("/15-11-2026.txt")));
    expectLog(path("state/Velmor/Logs"));
}

TEST_F(SharedLog, ADatabaseFolderThatHasGoneIsNotMadeAgain)
{
    setMode("program/Logs", 0555);
    ASSERT_EQ(0, ::rmdir(QFile::encodeName(path("shared")).constData()));
    EXPECT_EQ(0, boxesOfTwoLines(SecondUser));
    EXPECT_FALSE(exists(path("shared")));
    expectLog(path("state/Velmor/Logs"));
}

TEST_F(Log, EachDayHasItsFile)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    WriteLog(QStringLiteral("late"));
    SetClock([] { return QDateTime(QDate(2027, 1, 5), QTime(0, 0)); });
    WriteLog(QStringLiteral("early"));
    EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : late\r\n"), bytesOf(day));
    EXPECT_EQ(QByteArray("05/01/2027 00:00:00 : early\r\n"), bytesOf(path("program/Logs/05-01-2027.txt")));
}

TEST_F(Log, AnEntryCanHoldLineBreaks)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    WriteLog(QStringLiteral("Program Ended\r\n##"));
    EXPECT_EQ(QByteArray("15/11/2026 14:03:22 : Program Ended\r\n##\r\n"), bytesOf(day));
}

TEST_F(Log, ReadingAndWritingADocumentIsLoggedInPairs)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    put(day, QByteArray());
    const QString claim = path("claim.zr3");
    WriteTextDocument(QStringLiteral("x"), claim, true);
    ReadTextDocument(claim, true);
    const QString stamp = QStringLiteral("15/11/2026 14:03:22 : ");
    EXPECT_EQ(stamp + QStringLiteral("Begin Write Text Document - ") + claim + QStringLiteral("\r\n") + stamp
            + QStringLiteral("End Write Text Document - ") + claim + QStringLiteral("\r\n") + stamp
            + QStringLiteral("Begin Read Text Document - ") + claim + QStringLiteral("\r\n") + stamp
            + QStringLiteral("End Read Text Document - ") + claim + QStringLiteral("\r\n"),
        QString::fromUtf8(bytesOf(day)));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Log, WithoutLogItNothingIsLogged)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    WriteTextDocument(QStringLiteral("x"), path("claim.zr3"), false);
    ReadTextDocument(path("claim.zr3"), false);
    EXPECT_FALSE(exists(day));
}

TEST_F(Log, AFailedReadOrWriteHasNoEndLine)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    put(day, QByteArray());
    ReadTextDocument(path("nowhere/a"), true);
    WriteTextDocument(QString(), path("nowhere/b"), true);
    const QByteArray log = bytesOf(day);
    EXPECT_TRUE(log.contains("Begin Read Text Document - "));
    EXPECT_TRUE(log.contains("Begin Write Text Document - "));
    EXPECT_FALSE(log.contains("End "));
}

TEST_F(Log, StoredSettingsAreLoggedInPairs)
{
    make(QStringLiteral("program/Logs"));
    switchOn();
    put(day, QByteArray());
    const QString name = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmor\\ZR3\\Database Path");
    WriteRegKey(name, QStringLiteral("/srv"));
    ReadRegKey(name);
    DeleteRegKey(name);
    QByteArray expected;
    for (const char *operation : {"Write", "Read", "Delete"})
        for (const char *moment : {"Begin ", "End "})
            expected
                += QByteArray("15/11/2026 14:03:22 : ") + moment + operation + " Reg Key - " + name.toUtf8() + "\r\n";
    EXPECT_EQ(expected, bytesOf(day));
}
