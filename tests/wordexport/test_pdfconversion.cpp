// Converting a document with the office program: with scripts in its place, and at the end with the real one.

#include "tests/support/clsFolderTest.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/clsPdfConversion.h"
#include "wordexport/mdOfficeProgram.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <csignal>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Long = 20'000;
constexpr int Short = 1'500;

class PdfConversion : public clsFolderTest {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        static int count = 1;
        static char name[] = "wordexport_test";
        static char *arguments[] = {name, nullptr};
        if (!QCoreApplication::instance())
            static QCoreApplication application(count, arguments);
        document = put("Claim1.doc", "the document");
    }

    /// A script in place of the office program.
    QString script(const QByteArray &steps, const char *name = "soffice") const
    {
        const QString file = put(name, "#!/bin/sh\nhere='" + QFile::encodeName(folder.path()) + "'\n" + steps + '\n');
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file;
    }
    /// Script steps that make a PDF like the office program: in the given output folder.
    static QByteArray makesPdf()
    {
        return "while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\n"
               "{ printf '%s' '%PDF-1.6 of '; cat \"$1\"; } >\"$out/$(basename \"$1\" .doc).pdf\"";
    }
    qint64 numberIn(const char *name) const { return bytesOf(path(name)).trimmed().toLongLong(); }
    void waitForFile(const char *name) const
    {
        for (int i = 0; i < 500 && numberIn(name) == 0; ++i)
            QThread::msleep(10);
        ASSERT_GT(numberIn(name), 0);
    }
    static bool isAlive(qint64 process)
    {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
        // A zombie no longer counts as a process.
        return stat.open(QIODevice::ReadOnly) && !stat.readAll().contains(") Z ");
    }

    /// The message of a conversion that fails with this program.
    QString failureOf(const QString &program, int longest = Long) const
    {
        const clsOfficeProgramScope scope(program, longest);
        clsPdfConversion conversion(document);
        EXPECT_EQ(clsPdfConversion::Failed, conversion.wait());
        EXPECT_EQ(QString(), conversion.pdf());
        EXPECT_EQ(conversion.failure(), mdPutPdfInPlace(conversion, document, path("Claim1.pdf")));
        EXPECT_FALSE(QFile::exists(path("Claim1.pdf")));
        return conversion.failure();
    }

    QString document;
};

} // namespace

TEST_F(PdfConversion, MakesThePdfOfACopyInAPrivateFolder)
{
    const clsOfficeProgramScope scope(
        script("printf '%s\\n' \"$@\" >\"$here/arguments\"; pwd >\"$here/pwd\"; echo $TMPDIR >\"$here/tmp\"\n"
            + makesPdf()),
        Long);
    QString working;
    {
        clsPdfConversion conversion(document);
        put("Claim1.doc", "changed while it is converted");
        ASSERT_EQ(clsPdfConversion::Done, conversion.wait()) << qPrintable(conversion.failure());
        EXPECT_EQ("%PDF-1.6 of the document", bytesOf(conversion.pdf()));
        working = QFileInfo(conversion.pdf()).path();
        struct stat status;
        ASSERT_EQ(0, stat(QFile::encodeName(working).constData(), &status));
        EXPECT_EQ(0700U, status.st_mode & 07777);
        const QByteArray arguments = bytesOf(path("arguments"));
        EXPECT_TRUE(arguments.contains("-env:UserInstallation=file://" + QFile::encodeName(working) + "/profile\n"));
        EXPECT_TRUE(arguments.contains("--headless\n"));
        EXPECT_EQ(QFile::encodeName(working), bytesOf(path("pwd")).trimmed());
        EXPECT_EQ(QFile::encodeName(working) + "/tmp", bytesOf(path("tmp")).trimmed());
    }
    EXPECT_FALSE(QFileInfo::exists(working));
}

TEST_F(PdfConversion, ThePdfIsAsOpenAsTheDocument)
{
    const clsOfficeProgramScope scope(script(makesPdf()), Long);
    ASSERT_EQ(0, chmod(QFile::encodeName(document).constData(), 0640));
    clsPdfConversion conversion(document);
    conversion.wait();
    EXPECT_EQ(QString(), mdPutPdfInPlace(conversion, document, path("Claim1.pdf")));
    struct stat status;
    ASSERT_EQ(0, stat(QFile::encodeName(path("Claim1.pdf")).constData(), &status));
    EXPECT_EQ(0640U, status.st_mode & 07777);
    EXPECT_EQ("%PDF-1.6 of the document", bytesOf(path("Claim1.pdf")));
}

TEST_F(PdfConversion, APdfThatCanNotBeWrittenIsTold)
{
    const clsOfficeProgramScope scope(script(makesPdf()), Long);
    clsPdfConversion conversion(document);
    conversion.wait();
    EXPECT_EQ(QStringLiteral("The PDF could not be written: File not found."),
        mdPutPdfInPlace(conversion, document, path("missing/Claim1.pdf")));
}

TEST_F(PdfConversion, TellsThatNoOfficeProgramIsInstalled)
{
    EXPECT_EQ(
        QStringLiteral("No office program was found that can make the PDF. Install LibreOffice Writer and try again."),
        failureOf(QString()));
}

TEST_F(PdfConversion, TellsHowItFailed)
{
    EXPECT_EQ(QStringLiteral("LibreOffice failed to make the PDF (exit status 3)."),
        failureOf(script(makesPdf() + "\nexit 3")));
    EXPECT_EQ(QStringLiteral("LibreOffice ended without making the PDF."), failureOf(script("exit 0")));
    EXPECT_EQ(QStringLiteral("LibreOffice ended without making the PDF."),
        failureOf(script("while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\n"
                         ": >\"$out/document.pdf\"")));
    EXPECT_EQ(QStringLiteral("LibreOffice broke down while it made the PDF."), failureOf(script("kill -SEGV $$")));
    EXPECT_TRUE(failureOf(path("missing")).startsWith(QStringLiteral("LibreOffice could not be started: ")));
    document = path("missing.doc");
    EXPECT_EQ(
        QStringLiteral("The document could not be copied for the PDF: File not found."), failureOf(script(makesPdf())));
}

TEST_F(PdfConversion, OneThatHangsIsStoppedWithAllThatItHasStarted)
{
    const QString hanging = script("sleep 1000 & echo $! >\"$here/child\"; echo $$ >\"$here/self\"; wait");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(QStringLiteral("LibreOffice did not make the PDF within 1.5 seconds and was stopped."),
        failureOf(hanging, Short));
    EXPECT_LT(clock.elapsed(), 10'000);
    ASSERT_GT(numberIn("child"), 0);
    EXPECT_FALSE(isAlive(numberIn("child")));
    EXPECT_FALSE(isAlive(numberIn("self")));
}

TEST_F(PdfConversion, WhatIsLeftRunningEndsWithIt)
{
    const clsOfficeProgramScope scope(script("sleep 1000 & echo $! >\"$here/child\"\n" + makesPdf()), Long);
    clsPdfConversion conversion(document);
    EXPECT_EQ(clsPdfConversion::Done, conversion.wait());
    EXPECT_FALSE(isAlive(numberIn("child")));
}

TEST_F(PdfConversion, CanBeCancelledAndDropped)
{
    const clsOfficeProgramScope scope(script("echo $$ >\"$here/self\"; sleep 1000"), Long);
    int told = 0;
    {
        clsPdfConversion conversion(document, [&] { ++told; });
        waitForFile("self");
        EXPECT_EQ(clsPdfConversion::Running, conversion.state());
        conversion.cancel();
        EXPECT_EQ(clsPdfConversion::Cancelled, conversion.state());
        EXPECT_EQ(QString(), conversion.failure());
        EXPECT_FALSE(isAlive(numberIn("self")));
        QCoreApplication::processEvents();
        EXPECT_EQ(1, told);
    }
    QFile::remove(path("self"));
    {
        const clsPdfConversion conversion(document, [&] { ++told; });
        waitForFile("self");
    }
    EXPECT_FALSE(isAlive(numberIn("self")));
    QCoreApplication::processEvents();
    EXPECT_EQ(1, told);
}

TEST_F(PdfConversion, GoesOnByItselfInAnEventLoop)
{
    for (const auto &[steps, longest, expected] : {std::tuple(makesPdf(), Long, clsPdfConversion::Done),
             std::tuple(QByteArray("sleep 1000"), Short, clsPdfConversion::Failed)}) {
        const clsOfficeProgramScope scope(script(steps), longest);
        QEventLoop loop;
        std::optional<clsPdfConversion> conversion;
        auto state = clsPdfConversion::Running;
        conversion.emplace(document, [&] {
            state = conversion->state();
            conversion.reset(); // which it may
            loop.quit();
        });
        loop.exec();
        EXPECT_EQ(expected, state);
    }
}

TEST_F(PdfConversion, WhatTheProgramHasStartedIsNotAmongTheProcesses)
{
    const QString name = QStringLiteral("zr3-fake-office");
    const QString program = script("echo $$ >\"$here/self\"; sleep 1000", "zr3-fake-office");
    {
        const clsOfficeProgramScope scope(program, Long);
        const clsPdfConversion conversion(document);
        waitForFile("self");
        EXPECT_FALSE(mdProcessNames().contains(name));
    }
    QFile::remove(path("self"));
    // Not this program's process: its parent has ended.
    ASSERT_TRUE(QProcess::startDetached(program, {}));
    waitForFile("self");
    EXPECT_TRUE(mdProcessNames().contains(name));
    ASSERT_GT(numberIn("self"), 1);
    ::kill(pid_t(-::getpgid(pid_t(numberIn("self")))), SIGKILL);
}

TEST_F(PdfConversion, OneThatHangsIsGivenUpAfterAMinute)
{
    EXPECT_EQ(60'000, mdOfficeProgramLongestMilliseconds());
}

namespace {

/// The installed office program.
class RealPdfConversion : public PdfConversion {
protected:
    void SetUp() override
    {
        if (mdOfficeProgram().isEmpty())
            GTEST_SKIP() << "there is no LibreOffice on this machine";
        PdfConversion::SetUp();
        ASSERT_TRUE(QFile::remove(document));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZR3_TEMPLATES "/Claim1 P1.doc"), document));
        // The conversion then takes place below this folder.
        qputenv("TMPDIR", QFile::encodeName(folder.path()));
    }
    void TearDown() override { qunsetenv("TMPDIR"); }

    /// The names, or the numbers, of the processes that have a folder in their arguments.
    static QStringList processesIn(const QString &place, bool numbers = false)
    {
        QStringList found;
        for (const QString &entry : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[1-9]*")}, QDir::Dirs)) {
            QFile arguments(QStringLiteral("/proc/%1/cmdline").arg(entry));
            if (arguments.open(QIODevice::ReadOnly) && arguments.readAll().contains(QFile::encodeName(place))
                && isAlive(entry.toLongLong()))
                found << (numbers
                        ? entry
                        : QFileInfo(QStringLiteral("/proc/%1/exe").arg(entry)).symLinkTarget().section(u'/', -1));
        }
        return found;
    }
    static bool comesUpIn(const QString &place)
    {
        for (int i = 0; i < 3000 && !processesIn(place).contains(QStringLiteral("soffice.bin")); ++i)
            QThread::msleep(10);
        return processesIn(place).contains(QStringLiteral("soffice.bin"));
    }
    static void killAllIn(const QString &place)
    {
        for (const QString &process : processesIn(place, true))
            ::kill(pid_t(process.toLongLong()), SIGKILL);
    }
    QStringList leftBehind() const
    {
        return QDir(folder.path()).entryList({QStringLiteral("wordexport_test-*")}, QDir::AllEntries | QDir::Hidden);
    }
};

} // namespace

TEST_F(RealPdfConversion, MakesTenOneAfterTheOtherAndLeavesNothingBehind)
{
    for (int i = 0; i < 10; ++i) {
        clsPdfConversion conversion(document);
        ASSERT_EQ(clsPdfConversion::Done, conversion.wait()) << i << qPrintable(conversion.failure());
        EXPECT_TRUE(bytesOf(conversion.pdf()).startsWith("%PDF-"));
        EXPECT_GT(QFileInfo(conversion.pdf()).size(), 5'000);
        EXPECT_EQ(1, leftBehind().size()) << "its own folder, which shows that this looks in the right place";
    }
    EXPECT_EQ(QStringList(), leftBehind());
    EXPECT_EQ(QStringList(), processesIn(folder.path()));
}

TEST_F(RealPdfConversion, LeavesOneThatRunsAlreadyInPeace)
{
    const QString profile = path("theirs");
    const QStringList arguments = {QStringLiteral("-env:UserInstallation=file://") + profile,
        QStringLiteral("--headless"), QStringLiteral("--norestore"), QStringLiteral("--nologo")};
    // With a new profile it starts itself a second time.
    ASSERT_EQ(
        0, QProcess::execute(mdOfficeProgram(), arguments + QStringList(QStringLiteral("--terminate_after_init"))));
    QProcess theirs;
    theirs.start(
        mdOfficeProgram(), arguments + QStringList(QStringLiteral("--accept=pipe,name=zr3%1;urp").arg(::getpid())));
    ASSERT_TRUE(comesUpIn(profile));
    const QStringList running = processesIn(profile, true);
    {
        clsPdfConversion conversion(document);
        EXPECT_EQ(clsPdfConversion::Done, conversion.wait()) << qPrintable(conversion.failure());
        EXPECT_TRUE(bytesOf(conversion.pdf()).startsWith("%PDF-"));
    }
    EXPECT_EQ(running, processesIn(profile, true)) << "ours has ended, and no other";
    {
        // Nor does stopping a conversion end it.
        clsPdfConversion conversion(document);
        EXPECT_TRUE(comesUpIn(folder.filePath(QStringLiteral("wordexport_test-"))));
        conversion.cancel();
    }
    EXPECT_EQ(running, processesIn(profile, true));
    killAllIn(profile);
    theirs.waitForFinished();
}

TEST_F(RealPdfConversion, IsStoppedWhole)
{
    clsPdfConversion conversion(document);
    ASSERT_TRUE(comesUpIn(folder.path()));
    conversion.cancel();
    EXPECT_EQ(clsPdfConversion::Cancelled, conversion.state());
    EXPECT_EQ(QStringList(), processesIn(folder.path()));
}

TEST_F(RealPdfConversion, OneThatIsKilledIsAFailure)
{
    {
        clsPdfConversion conversion(document);
        ASSERT_TRUE(comesUpIn(folder.path()));
        killAllIn(folder.path());
        EXPECT_EQ(clsPdfConversion::Failed, conversion.wait());
        EXPECT_EQ(QStringLiteral("LibreOffice broke down while it made the PDF."), conversion.failure());
    }
    EXPECT_EQ(QStringList(), processesIn(folder.path()));
    EXPECT_EQ(QStringList(), leftBehind());
}
