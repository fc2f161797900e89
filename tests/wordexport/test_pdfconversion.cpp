// The conversion of a document by the office program, which here is a script, and at the end the real one.

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

    /// A script in the place of the office program.
    QString script(const QByteArray &steps, const char *name = "soffice") const
    {
        const QString file = put(name, "#!/bin/sh\nhere='" + QFile::encodeName(folder.path()) + "'\n" + steps + '\n');
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file;
    }
    /// The steps of a script that makes a PDF as the office program does: into the folder that it is told.
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
        // What has ended and was not waited for yet is no process any more.
        return stat.open(QIODevice::ReadOnly) && !stat.readAll().contains(") Z ");
    }

    /// The sentence that a conversion with such a program fails with.
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
    // One that is not this program's: its parent has ended.
    ASSERT_TRUE(QProcess::startDetached(program, {}));
    waitForFile("self");
    EXPECT_TRUE(mdProcessNames().contains(name));
    ASSERT_GT(numberIn("self"), 1);
    ::kill(pid_t(-::getpgid(pid_t(numberIn("self")))), SIGKILL);
}

TEST_F(PdfConversion, TheRealProgramMakesAPdf)
{
    if (mdOfficeProgram().isEmpty())
        GTEST_SKIP() << "there is no LibreOffice on this machine";
    ASSERT_TRUE(QFile::remove(document));
    ASSERT_TRUE(QFile::copy(QStringLiteral(ZR3_TEMPLATES "/Claim1 P1.doc"), document));
    clsPdfConversion conversion(document);
    ASSERT_EQ(clsPdfConversion::Done, conversion.wait()) << qPrintable(conversion.failure());
    EXPECT_TRUE(bytesOf(conversion.pdf()).startsWith("%PDF-"));
    EXPECT_GT(QFileInfo(conversion.pdf()).size(), 5'000);
}

TEST_F(PdfConversion, TheRealProgramIsStoppedWhole)
{
    if (mdOfficeProgram().isEmpty())
        GTEST_SKIP() << "there is no LibreOffice on this machine";
    const clsOfficeProgramScope scope(QString(mdOfficeProgram()), Long);
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    clsPdfConversion conversion(document);
    qunsetenv("TMPDIR");
    // Those of the processes that work in its private folder, which they name in their arguments.
    const auto processes = [&] {
        QStringList found;
        for (const QString &entry : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[1-9]*")}, QDir::Dirs)) {
            const qint64 process = entry.toLongLong();
            QFile arguments(QStringLiteral("/proc/%1/cmdline").arg(process));
            if (arguments.open(QIODevice::ReadOnly) && arguments.readAll().contains(QFile::encodeName(folder.path()))
                && isAlive(process))
                found << QFileInfo(QStringLiteral("/proc/%1/exe").arg(process)).symLinkTarget().section(u'/', -1);
        }
        return found;
    };
    for (int i = 0; i < 500 && !processes().contains(QStringLiteral("soffice.bin")); ++i)
        QThread::msleep(10);
    ASSERT_TRUE(processes().contains(QStringLiteral("soffice.bin")));
    conversion.cancel();
    EXPECT_EQ(clsPdfConversion::Cancelled, conversion.state());
    EXPECT_EQ(QStringList(), processes());
}
