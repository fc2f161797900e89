// The finished document, and what a failure leaves: nothing that was not there before.

#include "tests/zr3tool/clsToolTest.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class ToolExport : public clsToolTest {
protected:
    void SetUp() override
    {
        clsToolTest::SetUp();
        ASSERT_TRUE(QDir(folder.path()).mkpath("out"_q));
        ASSERT_TRUE(QFileInfo::exists(templates() + "/Claim1 P1.doc"_q)) << "the build makes the templates";
    }

    static QString templates() { return QFileInfo(QStringLiteral(ZR3_TOOL)).path() + "/Templates"_q; }
    QString out() const { return path("out"); }

    /// A small claim of two pages.
    QString smallClaim(const char *name = "claim.zr3")
    {
        clsZR3Form form;
        fill(form);
        includePages(form, {1, 2});
        return putClaim(form, name);
    }
    static void includePages(clsZR3Form &form, const std::vector<int> &pages)
    {
        for (int page = 1; page <= 13; ++page)
            form.field("IncludePage%1"_q.arg(page))->writeBoolean(std::find(pages.begin(), pages.end(), page) != pages.end());
    }

    /// A failed export: status 4, that message alone, and the folder as it was, with and without a document in it.
    void expectFailure(const QStringList &arguments, const QByteArray &message)
    {
        clsToolResult result = run(arguments);
        EXPECT_EQ(4, result.status);
        EXPECT_EQ("", result.out);
        EXPECT_EQ(message, result.err);
        EXPECT_EQ(QStringList(), filesOf(out()));
        for (const char *document : {"out/Claim1.doc", "out/Claim1A.doc"})
            put(document, "the older document");
        result = run(arguments + QStringList {"--force"_q});
        EXPECT_EQ(4, result.status);
        EXPECT_EQ(message, result.err);
        EXPECT_EQ(QStringList({"Claim1.doc"_q, "Claim1A.doc"_q}), filesOf(out()));
        for (const char *document : {"out/Claim1.doc", "out/Claim1A.doc"})
            EXPECT_EQ("the older document", bytesOf(path(document)));
    }
};

} // namespace

TEST_F(ToolExport, MakesTheDocumentAndNothingElse)
{
    const QString claim = mdSamplePath("housing-typical.zr3"_q);
    const QByteArray before = bytesOf(claim);
    const clsToolResult result = run({"export"_q, claim, out()});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ("", result.err); // no terminal, no progress
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
    EXPECT_TRUE(bytesOf(path("out/Claim1.doc")).startsWith("PK"));
    EXPECT_EQ(before, bytesOf(claim));
}

TEST_F(ToolExport, AnExistingDocumentNeedsForce)
{
    const QString claim = smallClaim();
    put("out/Claim1.doc", "the older document");
    const clsToolResult refused = run({"export"_q, claim, out()});
    EXPECT_EQ(5, refused.status);
    EXPECT_EQ("", refused.out);
    EXPECT_EQ("Export: The document " + path("out/Claim1.doc").toUtf8() + " exists already. Give --force to replace it.\n",
              refused.err);
    EXPECT_EQ("the older document", bytesOf(path("out/Claim1.doc")));
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
    EXPECT_EQ(0, run({"export"_q, claim, out(), "--force"_q}).status);
    EXPECT_TRUE(bytesOf(path("out/Claim1.doc")).startsWith("PK"));
}

TEST_F(ToolExport, KeepSheetsLeavesTheSheetsInTheirFolder)
{
    EXPECT_EQ(0, run({"export"_q, smallClaim(), out(), "--keep-sheets"_q}).status);
    EXPECT_EQ(QStringList({"Claim1.doc"_q, "~ZR3Temp"_q}), filesOf(out()));
    EXPECT_EQ(QStringList({"1(1).doc"_q, "2(1).doc"_q}), filesOf(path("out/~ZR3Temp")));
}

TEST_F(ToolExport, TheSameClaimGivesTheSameBytes)
{
    const QString claim = smallClaim();
    ASSERT_EQ(0, run({"export"_q, claim, out()}).status);
    const QByteArray first = bytesOf(path("out/Claim1.doc"));
    ASSERT_EQ(0, run({"export"_q, claim, out(), "--force"_q, "--quiet"_q}).status);
    EXPECT_EQ(first, bytesOf(path("out/Claim1.doc")));
}

TEST_F(ToolExport, ARelativeFolderIsTakenFromTheCurrentOne)
{
    EXPECT_EQ(0, run({"export"_q, smallClaim(), "out"_q}).status);
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
}

TEST_F(ToolExport, TheTemplatesMayLieElsewhere)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("own"_q));
    for (const char *name : {"/Claim1 P1.doc", "/Claim1 P2.doc"})
        ASSERT_TRUE(QFile::copy(templates() + QString::fromLatin1(name), path("own") + QString::fromLatin1(name)));
    EXPECT_EQ(0, run({"export"_q, smallClaim(), out(), "--templates"_q, path("own")}).status);
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
}

TEST_F(ToolExport, AMissingFolderIsTold)
{
    for (const QString &target : {path("missing"), smallClaim()}) {
        const clsToolResult result = run({"export"_q, smallClaim(), target});
        EXPECT_EQ(4, result.status);
        EXPECT_EQ("", result.out);
        EXPECT_EQ("Export Path: The selected Export Path does not exist. Please select a valid folder and try again.\n", result.err);
    }
    EXPECT_FALSE(QFileInfo::exists(path("missing")));
}

TEST_F(ToolExport, MissingTemplatesAreAFailure)
{
    expectFailure({"export"_q, smallClaim(), out(), "--templates"_q, path("missing")},
                  "Run-time error '53': File not found\n");
}

TEST_F(ToolExport, ABrokenTemplateIsAFailure)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("own"_q));
    ASSERT_TRUE(QFile::copy(templates() + "/Claim1 P1.doc"_q, path("own/Claim1 P1.doc")));
    const QByteArray whole = bytesOf(templates() + "/Claim1 P2.doc"_q);
    for (const QByteArray &bytes : {QByteArray(), QByteArray("no document"), whole.left(whole.size() / 2)}) {
        for (const QString &document : filesOf(out()))
            QFile::remove(out() + u'/' + document);
        put("own/Claim1 P2.doc", bytes);
        const QStringList arguments = {"export"_q, smallClaim(), out(), "--templates"_q, path("own")};
        const clsToolResult result = run(arguments);
        // One block, of a run-time error that names the template.
        EXPECT_TRUE(result.err.startsWith("Run-time error '")) << result.err.constData();
        EXPECT_EQ(1, result.err.count("Run-time error"));
        EXPECT_TRUE(result.err.contains("Claim1 P2")) << result.err.constData();
        expectFailure(arguments, result.err);
    }
}

TEST_F(ToolExport, AFolderThatCanNotBeWrittenIsAFailure)
{
    constexpr uid_t Nobody = 65534;
    const QString claim = smallClaim();
    std::function<void()> asSomebodyElse;
    if (geteuid() == 0) {
        ASSERT_EQ(0, chmod(QFile::encodeName(folder.path()).constData(), 0755));
        asSomebodyElse = [] {
            if (setuid(Nobody) != 0)
                _exit(1);
        };
        if (run({"--version"_q}, {}, asSomebodyElse).status != 0)
            GTEST_SKIP() << "no other user can run the program where it lies";
    }
    ASSERT_EQ(0, chmod(QFile::encodeName(claim).constData(), 0644));
    ASSERT_EQ(0, chmod(QFile::encodeName(out()).constData(), 0555));
    const clsToolResult result = run({"export"_q, claim, out()}, {}, asSomebodyElse);
    EXPECT_EQ(4, result.status);
    EXPECT_EQ("Run-time error '70': Permission denied\n", result.err);
    EXPECT_EQ(QStringList(), filesOf(out()));
    ASSERT_EQ(0, chmod(QFile::encodeName(out()).constData(), 0755));
}

TEST_F(ToolExport, ANoteThatCanNeverFitEndsTheExportBeforeItsFirstSheet)
{
    // Two words of 40 characters do not stand on one line of 60: so many words, so many lines.
    clsZR3Form form;
    fill(form);
    includePages(form, {1, 6});
    const QStringList words(49, QString(40, u'x'));
    form.ScheduleOfTimeItem(1)->Description = words.join(u' ');
    expectFailure({"export"_q, putClaim(form), out()},
                  "Additional Information: Item 1 has a description of 49 lines. The additional information sheets hold at most "
                  "48 lines for one item. Please shorten the description and try again.\n");
}

TEST_F(ToolExport, ANoteThatIsNotPrintedMayBeAsLongAsItLikes)
{
    clsZR3Form form;
    fill(form);
    includePages(form, {1});
    form.ScheduleOfTimeItem(1)->Description = QStringList(49, QString(40, u'x')).join(u' ');
    EXPECT_EQ(0, run({"export"_q, putClaim(form), out()}).status);
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
}

TEST_F(ToolExport, ClaimsOfTheOtherTypeHaveNoPagesYet)
{
    clsZR3Form form;
    form.FormType = "Claim1A"_q;
    expectFailure({"export"_q, putClaim(form), out()},
                  "Export: There are no pages for the form type \"Claim1A\" of this claim.\n");
}

TEST_F(ToolExport, AFigureThatCanNotBeComputedIsAFailure)
{
    clsZR3Form form;
    fill(form);
    form.FeeEarnerGroup(1)->HourlyRate = QString();
    const clsToolResult result = run({"export"_q, putClaim(form), out()});
    EXPECT_EQ(4, result.status);
    EXPECT_EQ("Run-time error '13': Type mismatch\n", result.err);
    EXPECT_EQ(QStringList(), filesOf(out()));
}

TEST_F(ToolExport, AMissingFirstPageIsAFailure)
{
    clsZR3Form form;
    includePages(form, {2});
    expectFailure({"export"_q, putClaim(form), out()}, "Run-time error '53': File not found\n");
}

TEST_F(ToolExport, AFormTypeThatNobodyKnowsIsAFailure)
{
    clsZR3Form form;
    form.FormType = "Claim2"_q;
    expectFailure({"export"_q, putClaim(form), out()},
                  "Export: There are no pages for the form type \"Claim2\" of this claim.\n");
}

TEST_F(ToolExport, WhatStandsInTheWayOfTheSheetsIsLeftAlone)
{
    put("out/~ZR3Temp", "somebody's file");
    const clsToolResult result = run({"export"_q, smallClaim(), out()});
    EXPECT_EQ(4, result.status);
    EXPECT_EQ(1, result.err.count("Run-time error '")) << result.err.constData();
    EXPECT_EQ("somebody's file", bytesOf(path("out/~ZR3Temp")));
    EXPECT_EQ(QStringList {"~ZR3Temp"_q}, filesOf(out()));
}
