// The PDF beside the document, and naming the document after the claim's file.

#include "tests/zr3tool/clsToolTest.h"

#include <QProcess>
#include <QStandardPaths>

#include <csignal>

#include <sys/stat.h>

namespace {

class ToolPdf : public clsToolTest {
protected:
    void SetUp() override
    {
        clsToolTest::SetUp();
        ASSERT_TRUE(QDir(folder.path()).mkpath("out"_q));
        clsZR3Form form;
        for (int page = 3; page <= 13; ++page)
            form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
        claim = putClaim(form, "Hartwell v. Lee.zr3");
    }
    void TearDown() override { qputenv("PATH", m_path); }

    /// Puts a script before the installed office program in the path.
    void useOfficeProgram(const QByteArray &steps)
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath("bin"_q));
        const QString program = put("bin/soffice", "#!/bin/sh\n" + steps + '\n');
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(path("bin")) + ':' + m_path);
    }
    void useOneThatWorks()
    {
        useOfficeProgram("while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\n"
                         "echo '%PDF-1.6 new' >\"$out/document.pdf\"");
    }
    QStringList found() const { return filesOf(path("out")); }

    QString claim;

private:
    QByteArray m_path = qgetenv("PATH");
};

} // namespace

TEST_F(ToolPdf, TakesTheOfficeProgramAndItsFilesAlongWhereItIsToldToEnd)
{
    useOfficeProgram("echo $$ >'" + QFile::encodeName(path("began")) + "'; exec sleep 60");
    ASSERT_TRUE(QDir(folder.path()).mkpath("temporary"_q));
    for (const int signal : {SIGTERM, SIGINT}) {
        QFile::remove(path("began"));
        QProcess tool;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR"_q, path("temporary"));
        tool.setProcessEnvironment(environment);
        tool.setWorkingDirectory(folder.path());
        tool.start(QStringLiteral(ZR3_TOOL), {"export"_q, "--force"_q, "--pdf"_q, "--quiet"_q, claim, "out"_q});
        QByteArray office;
        for (int tries = 0; tries < 600 && !office.endsWith('\n'); ++tries) {
            tool.waitForFinished(50);
            if (QFile::exists(path("began")))
                office = bytesOf(path("began"));
        }
        ASSERT_TRUE(office.endsWith('\n')) << "the office program was not started";
        ASSERT_EQ(0, ::kill(pid_t(tool.processId()), signal));
        ASSERT_TRUE(tool.waitForFinished(30'000));
        EXPECT_EQ(4, tool.exitCode()) << signal;
        EXPECT_NE(0, ::kill(pid_t(office.trimmed().toInt()), 0)) << "the office program still runs";
        EXPECT_EQ(QStringList(), filesOf(path("temporary"))) << signal;
        EXPECT_EQ(QStringList("Claim1.doc"_q), found()) << "the document is whole";
    }
}

TEST_F(ToolPdf, StandsBesideTheDocumentAndIsAsOpen)
{
    useOneThatWorks();
    ASSERT_EQ(0, chmod(QFile::encodeName(claim).constData(), 0640));
    const clsToolResult result = run({"export"_q, "--pdf"_q, claim, "out"_q});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(QStringList({"Claim1.doc"_q, "Claim1.pdf"_q}), found());
    EXPECT_EQ("%PDF-1.6 new\n", bytesOf(path("out/Claim1.pdf")));
    for (const char *file : {"out/Claim1.doc", "out/Claim1.pdf"}) {
        struct stat status;
        ASSERT_EQ(0, stat(QFile::encodeName(path(file)).constData(), &status));
        EXPECT_EQ(0640U, status.st_mode & 07777) << file;
    }
}

TEST_F(ToolPdf, IsReplacedOnlyByForce)
{
    useOneThatWorks();
    put("out/Claim1.pdf", "older");
    const clsToolResult refused = run({"export"_q, "--pdf"_q, claim, "out"_q});
    EXPECT_EQ(5, refused.status);
    EXPECT_EQ("Export: The document " + QFile::encodeName(path("out/Claim1.pdf"))
            + " exists already. Give --force to replace it.\n",
        refused.err);
    EXPECT_EQ(QStringList({"Claim1.pdf"_q}), found());
    EXPECT_EQ("older", bytesOf(path("out/Claim1.pdf")));
    EXPECT_EQ(0, run({"export"_q, "--pdf"_q, "--force"_q, claim, "out"_q}).status);
    EXPECT_EQ("%PDF-1.6 new\n", bytesOf(path("out/Claim1.pdf")));
    // Without --pdf an existing PDF is not touched.
    EXPECT_TRUE(QFile::remove(path("out/Claim1.doc")));
    EXPECT_EQ(0, run({"export"_q, claim, "out"_q}).status);
}

TEST_F(ToolPdf, OneThatCanNotBeMadeLeavesTheDocumentAndSaysWhy)
{
    useOfficeProgram("exit 3");
    const clsToolResult failed = run({"export"_q, "--pdf"_q, claim, "out"_q});
    EXPECT_EQ(4, failed.status);
    EXPECT_EQ("PDF: LibreOffice failed to make the PDF (exit status 3).\n", failed.err);
    EXPECT_EQ(QStringList({"Claim1.doc"_q}), found());
    EXPECT_TRUE(bytesOf(path("out/Claim1.doc")).startsWith("PK"));
    // Nor is one left by an export that failed.
    useOneThatWorks();
    EXPECT_EQ(4, run({"export"_q, "--pdf"_q, "--force"_q, claim, "missing"_q}).status);
    EXPECT_EQ(QStringList({"Claim1.doc"_q}), found());
}

TEST_F(ToolPdf, TheDocumentIsNamedAfterTheClaimsFile)
{
    useOneThatWorks();
    EXPECT_EQ(0, run({"export"_q, "--name-by-file"_q, "--pdf"_q, claim, "out"_q}).status);
    EXPECT_EQ(QStringList({"Hartwell v. Lee Claim1.doc"_q, "Hartwell v. Lee Claim1.pdf"_q}), found());
    const clsToolResult again = run({"export"_q, "--name-by-file"_q, claim, "out"_q});
    EXPECT_EQ(5, again.status);
    EXPECT_TRUE(again.err.contains("Hartwell v. Lee Claim1.doc exists already"));
    EXPECT_EQ(0, run({"export"_q, "--name-by-file"_q, "--force"_q, claim, "out"_q}).status);
    EXPECT_EQ(2, found().size());
}

TEST_F(ToolPdf, ALongNameOfAClaimIsShortened)
{
    const QString name = QString(250, u'n');
    ASSERT_TRUE(QFile::copy(claim, path("out") + u'/' + name + ".zr3"_q));
    const clsToolResult result = run({"export"_q, "--name-by-file"_q, path("out") + u'/' + name + ".zr3"_q, "out"_q});
    EXPECT_EQ(0, result.status) << result.err.constData();
    EXPECT_EQ(QStringList({QString(230, u'n') + " Claim1.doc"_q, name + ".zr3"_q}), found());
}

TEST_F(ToolPdf, TheOfficeProgramThatIsInstalledMakesOne)
{
    if (QStandardPaths::findExecutable("soffice"_q).isEmpty())
        GTEST_SKIP() << "there is no soffice on this machine";
    const clsToolResult result = run({"export"_q, "--pdf"_q, claim, "out"_q});
    EXPECT_EQ(0, result.status) << result.err.constData();
    EXPECT_TRUE(bytesOf(path("out/Claim1.pdf")).startsWith("%PDF-"));
}

TEST_F(ToolPdf, OfSeveralClaimsOneStandsBesideEachDocument)
{
    useOneThatWorks();
    QDir(folder.path()).mkpath("claims/sub"_q);
    ASSERT_TRUE(QFile::copy(claim, path("claims/Lee.zr3")));
    ASSERT_TRUE(QFile::copy(claim, path("claims/sub/Lee.zr3")));
    put("claims/broken.zr3", "<");
    const clsToolResult result = run({"export"_q, "--pdf"_q, "--jsonl"_q, "--jobs"_q, "2"_q, "claims"_q, "out"_q});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ(
        QStringList({"Lee Claim1 (2).doc"_q, "Lee Claim1 (2).pdf"_q, "Lee Claim1.doc"_q, "Lee Claim1.pdf"_q}), found());
    QStringList made;
    for (const QByteArray &line : result.out.trimmed().split('\n'))
        made << QJsonDocument::fromJson(line).object()["PDF"_q].toString();
    EXPECT_EQ(QStringList({path("out/Lee Claim1.pdf"), QString(), path("out/Lee Claim1 (2).pdf")}), made);
}

TEST_F(ToolPdf, OneOfSeveralThatFailsStopsNoOther)
{
    // The first that comes fails.
    useOfficeProgram("mkdir '" + QFile::encodeName(path("was here"))
        + "' 2>/dev/null && exit 1\n"
          "while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\n"
          "echo '%PDF-1.6 new' >\"$out/document.pdf\"");
    QDir(folder.path()).mkpath("claims"_q);
    for (const char *name : {"claims/a.zr3", "claims/b.zr3", "claims/c.zr3"})
        ASSERT_TRUE(QFile::copy(claim, path(name)));
    const clsToolResult result = run({"export"_q, "--pdf"_q, "--jobs"_q, "1"_q, "claims"_q, "out"_q});
    EXPECT_EQ(4, result.status);
    EXPECT_TRUE(result.err.startsWith("claims/a.zr3: PDF: ")) << result.err.constData();
    EXPECT_EQ(QStringList({"a Claim1.doc"_q, "b Claim1.doc"_q, "b Claim1.pdf"_q, "c Claim1.doc"_q, "c Claim1.pdf"_q}),
        found());
}

TEST_F(ToolPdf, TheOfficeProgramThatIsInstalledMakesThoseOfSeveralClaimsAtATime)
{
    if (QStandardPaths::findExecutable("soffice"_q).isEmpty())
        GTEST_SKIP() << "no office program is installed";
    QDir(folder.path()).mkpath("claims"_q);
    for (const char *name : {"claims/a.zr3", "claims/b.zr3", "claims/c.zr3"})
        ASSERT_TRUE(QFile::copy(claim, path(name)));
    const clsToolResult result = run({"export"_q, "--pdf"_q, "--jobs"_q, "2"_q, "claims"_q, "out"_q});
    EXPECT_EQ(0, result.status) << result.err.constData();
    for (const char *name : {"out/a Claim1.pdf", "out/b Claim1.pdf", "out/c Claim1.pdf"})
        EXPECT_TRUE(bytesOf(path(name)).startsWith("%PDF-")) << name;
    EXPECT_EQ(6, found().size()) << "nothing else is left";
}
