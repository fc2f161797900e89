// The parts of the program's start and end that need no window.

#include "base/mdCommandLine.h"
#include "base/mdEndSignals.h"
#include "base/mdNetworkPath.h"
#include "commands/mdRecoveredCopy.h"
#include "costing/mdCheckForBlankItems.h"
#include "tests/commands/clsDocumentTest.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <csignal>
#include <memory>
#include <optional>

#include <sys/wait.h>
#include <unistd.h>

// The program's folder

TEST(NetworkPath, BeginsWithTwoSeparators)
{
    for (const char *folder : {"\\\\server\\share", "\\\\", "//server/share"})
        EXPECT_TRUE(IsNetworkPath(QString::fromUtf8(folder))) << folder;
    for (const char *folder :
        {"", "\\", "/", "/opt/velmor", "\\server\\share", "Z:\\Velmor", "/\\server", "/opt//velmor"})
        EXPECT_FALSE(IsNetworkPath(QString::fromUtf8(folder))) << folder;
}

// The preferences

namespace {

class StartUp : public clsDocumentTest { };

} // namespace

TEST_F(StartUp, ABrokenPreferencesFileIsTheObjectError)
{
    for (const char *content : {"", "not XML", "<other/>"}) {
        Preferences.reset();
        put(path("program/Databases/Preferences Database.vzp"), content);
        EXPECT_EQ(clsRunTimeError::ObjectNotSet,
            errorOf([] { Preferences = std::make_unique<clsZR3PreferencesDatabase>(); }));
        EXPECT_FALSE(Preferences);
        EXPECT_EQ(QString(), WriteRecoveredCopy().path);
    }
}

// The command line

namespace {

class CommandLine : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        before = QDir::currentPath();
        ASSERT_TRUE(QDir::setCurrent(folder.path()));
    }
    void TearDown() override
    {
        QDir::setCurrent(before);
        clsShellTest::TearDown();
    }
    static QString pathOf(std::initializer_list<const char *> arguments)
    {
        QStringList list;
        for (const char *argument : arguments)
            list << QString::fromUtf8(argument);
        return CommandLinePath(list);
    }

private:
    QString before;
};

} // namespace

TEST_F(CommandLine, WithoutArgumentsThereIsNoPath)
{
    EXPECT_EQ(QString(), pathOf({}));
    EXPECT_EQ(QString(), pathOf({""}));
    EXPECT_EQ(QString(), pathOf({"\"\""}));
}

TEST_F(CommandLine, IsOnePathWithQuotesOrWithout)
{
    const QString expected = QStringLiteral("/srv/My Claims/R v Smith.zr3");
    EXPECT_EQ(expected, pathOf({"/srv/My Claims/R v Smith.zr3"}));
    EXPECT_EQ(expected, pathOf({"/srv/My", "Claims/R", "v", "Smith.zr3"}));
    EXPECT_EQ(expected, pathOf({"\"/srv/My Claims/R v Smith.zr3\""}));
    EXPECT_EQ(expected, pathOf({"\"/srv/My", "Claims\"/R", "v", "\"Smith.zr3\""}));
}

TEST_F(CommandLine, HasNoSwitches)
{
    EXPECT_EQ(path("--help"), pathOf({"--help"}));
    EXPECT_EQ(path("-x claim.zr3"), pathOf({"-x", "claim.zr3"}));
}

TEST_F(CommandLine, ARelativePathIsMadeFull)
{
    EXPECT_EQ(path("claim.zr3"), pathOf({"claim.zr3"}));
    EXPECT_EQ(path("claim.zr3"), pathOf({"./claim.zr3"}));
    EXPECT_EQ(path("claim.zr3"), pathOf({"program/../claim.zr3"}));
}

TEST_F(CommandLine, BehindALinkToAFolderTheDotsStayAsTheyAre)
{
    make(QStringLiteral("far/away"));
    put(path("far/claim.zr3"), "x");
    ASSERT_EQ(0, ::symlink("far/away", QFile::encodeName(path("link")).constData()));
    EXPECT_EQ(path("link/../claim.zr3"), pathOf({"link/../claim.zr3"}));
}

TEST_F(CommandLine, AFilesAddressIsItsPath)
{
    EXPECT_EQ(QStringLiteral("/srv/My Claims/é#1.zr3"), pathOf({"file:///srv/My%20Claims/%C3%A9%231.zr3"}));
    EXPECT_EQ(QStringLiteral("/srv/claim.zr3"), pathOf({"file://localhost/srv/claim.zr3"}));
    EXPECT_EQ(QStringLiteral("/srv/50%25#.zr3"), pathOf({"/srv/50%25#.zr3"})) << "a path is no address";
}

TEST_F(CommandLine, ANameThatIsNotUtf8IsFoundOutAndShown)
{
    EXPECT_EQ(QByteArray(), NameNotInUtf8({}));
    EXPECT_EQ(QByteArray(),
        NameNotInUtf8({"", "claim.zr3", "\xc3\xa9 \xef\xbf\xbd.zr3", "file:", "file:///\xc3\xa9.zr3",
            "file:///%C3%A9%EF%BF%BD.zr3", "file://localhost/a.zr3", "100%FF.zr3"}));
    for (const char *name : {"\xff.zr3", "My\xe9 Claims/a.zr3", "\xc3", "file:///a/%FF.zr3", "\xed\xa0\x80"})
        EXPECT_EQ(QByteArray(name), NameNotInUtf8({"claim.zr3", name, "\xfe"})) << name;
    EXPECT_EQ(QStringLiteral("The name of this file or folder has characters that the program can't read:\r\n\r\n"
                             "a\\xff\\x0a.zr3\r\n\r\nPlease rename it and try again."),
        RefusalOfName("a\xff\n.zr3"));
    EXPECT_EQ(QFile::encodeName(QDir::currentPath()), CurrentFolderName());
}

TEST_F(CommandLine, AFileWithQuotesInItsNameIsFound)
{
    put(path("R v \"X\".zr3"), "x");
    EXPECT_EQ(path("R v \"X\".zr3"), pathOf({"R v \"X\".zr3"}));
    EXPECT_EQ(path("R v Y.zr3"), pathOf({"R v \"Y\".zr3"}));
}

// The requests to end

namespace {

class EndSignals : public clsDocumentTest {
protected:
    void SetUp() override
    {
        clsDocumentTest::SetUp();
        if (!QCoreApplication::instance()) {
            static int argc = 1;
            static char name[] = "test";
            static char *argv[] = {name, nullptr};
            m_application = std::make_unique<QCoreApplication>(argc, argv);
        }
    }
    void TearDown() override
    {
        m_signals.reset();
        m_application.reset();
        clsDocumentTest::TearDown();
    }
    /// Runs the event loop until a condition holds; false after a timeout.
    template <class Condition> static bool waitFor(Condition condition)
    {
        for (int i = 0; i < 500 && !condition(); ++i) {
            QEventLoop loop;
            QTimer::singleShot(10, &loop, &QEventLoop::quit);
            loop.exec();
        }
        return condition();
    }
    static void letTheLoopRun()
    {
        waitFor([turns = 0]() mutable { return ++turns > 5; });
    }

    std::optional<clsEndSignalScope> m_signals;

private:
    std::unique_ptr<QCoreApplication> m_application;
};

} // namespace

TEST_F(EndSignals, CallTheHandlerFromTheEventLoop)
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        int calls = 0;
        m_signals.emplace([&] { ++calls; });
        ::raise(signal);
        EXPECT_EQ(0, calls) << "not from the signal itself";
        EXPECT_TRUE(waitFor([&] { return calls == 1; }));
    }
}

TEST_F(EndSignals, CallItOnceHoweverOftenTheyCome)
{
    int calls = 0;
    m_signals.emplace([&] {
        ++calls;
        ::raise(SIGHUP);
        letTheLoopRun(); // as a box would
    });
    for (int i = 0; i < 100'000; ++i) // more than the pipe holds
        ::raise(SIGTERM);
    EXPECT_TRUE(waitFor([&] { return calls > 0; }));
    ::raise(SIGTERM);
    letTheLoopRun();
    EXPECT_EQ(1, calls);
}

TEST_F(EndSignals, ReachAProgramThatShowsABox)
{
    QEventLoop box;
    m_signals.emplace([&] { box.exit(7); });
    QTimer::singleShot(0, &box, [] { ::raise(SIGTERM); });
    QTimer::singleShot(5000, &box, &QEventLoop::quit);
    EXPECT_EQ(7, box.exec());
}

TEST_F(EndSignals, TheHandlerMayTakeItselfAway)
{
    bool called = false;
    m_signals.emplace([&] {
        m_signals.reset();
        called = true;
    });
    ::raise(SIGTERM);
    EXPECT_TRUE(waitFor([&] { return called; }));
}

TEST_F(EndSignals, AreTheSystemsAgainWithoutAHandler)
{
    m_signals.emplace([] {});
    m_signals.reset();
    struct sigaction action = {};
    ASSERT_EQ(0, ::sigaction(SIGTERM, nullptr, &action));
    EXPECT_EQ(SIG_DFL, action.sa_handler);
}

TEST_F(EndSignals, OneThatWasIgnoredFromTheStartStaysIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    int calls = 0;
    m_signals.emplace([&] { ++calls; });
    ::raise(SIGHUP);
    letTheLoopRun();
    EXPECT_EQ(0, calls);
    m_signals.reset();
    std::signal(SIGHUP, SIG_DFL);
}

TEST_F(EndSignals, AProgramThatIsToldToEndWritesTheCopyAndEnds)
{
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 22)); });
    savedClaim();
    change();
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        QEventLoop loop;
        m_signals.emplace([&] { loop.exit(WriteRecoveredCopy().path.isEmpty() ? 1 : 42); });
        QTimer::singleShot(0, &loop, [] { ::kill(::getpid(), SIGTERM); });
        QTimer::singleShot(10000, &loop, [&] { loop.exit(2); });
        ::_exit(loop.exec());
    }
    int status = 0;
    ASSERT_EQ(child, ::waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(42, WEXITSTATUS(status));
    EXPECT_EQ(Form->XMLOutput(), textOf(path("program/Databases/Recovered/Smith 2026-11-21 14.03.22.zr3")));
}

// The user's check for items that bill nothing

namespace {

class BlankItemsCommand : public clsDocumentTest { };

} // namespace

TEST_F(BlankItemsCommand, ExaminesTheCurrentClaimAndLogsItsBeginningAndEnd)
{
    SetClock([] { return QDateTime(QDate(2026, 11, 15), QTime(14, 3, 22)); });
    make(QStringLiteral("program/Logs"));
    put(path("program/Logs/15-11-2026.txt"), QByteArray());
    Preferences->Log = true;
    NewForm(true);
    Form->AddScheduleOfTimeItem()->TTime = QStringLiteral("00:00");
    const QString before = Form->XMLOutput();
    CheckForBlankItems();
    expectBoxes(
        {{QStringLiteral("Blank Items"), QStringLiteral("Blank items: \r\n\r\nSchedule of Time Items: 1\r\n")}});
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(QStringLiteral("15/11/2026 14:03:22 : Begin Check for Blank Items\r\n"
                             "15/11/2026 14:03:22 : End Check for Blank Items\r\n"),
        textOf(path("program/Logs/15-11-2026.txt")));
}

TEST_F(BlankItemsCommand, WithoutAClaimIsTheObjectError)
{
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([] { CheckForBlankItems(); }));
}
