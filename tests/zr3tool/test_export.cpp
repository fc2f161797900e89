// The finished document, and failures, which leave no new files.

#include "tests/export/mdDocumentText.h"
#include "tests/zr3tool/clsToolTest.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>

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
            form.field("IncludePage%1"_q.arg(page))
                ->writeBoolean(std::find(pages.begin(), pages.end(), page) != pages.end());
    }

    /// Expects a failed export: status 4, only that message, and the folder unchanged, with and without a document in
    /// it.
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
    EXPECT_EQ("", result.err); // no progress without a terminal
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
    EXPECT_EQ(
        "Export: The document " + path("out/Claim1.doc").toUtf8() + " exists already. Give --force to replace it.\n",
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
        EXPECT_EQ("Export Path: The selected Export Path does not exist. Please select a valid folder and try again.\n",
            result.err);
    }
    EXPECT_FALSE(QFileInfo::exists(path("missing")));
}

TEST_F(ToolExport, MissingTemplatesAreAFailure)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("own"_q));
    ASSERT_TRUE(QFile::copy(templates() + "/Claim1 P1.doc"_q, path("own/Claim1 P1.doc")));
    expectFailure({"export"_q, smallClaim(), out(), "--templates"_q, path("own")},
        "Run-time error '53': File not found: " + path("own/Claim1 P2.doc").toUtf8() + "\n");
    for (const char *document : {"out/Claim1.doc", "out/Claim1A.doc"})
        ASSERT_TRUE(QFile::remove(path(document)));
    expectFailure({"export"_q, smallClaim(), out(), "--templates"_q, path("missing")},
        "Run-time error '76': Path not found: " + path("missing/Claim1 P1.doc").toUtf8() + "\n");
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
    const QString claim = smallClaim();
    const auto asSomebodyElse = asOrdinaryUser();
    if (!asSomebodyElse)
        GTEST_SKIP() << "no other user can run the program where it lies";
    ASSERT_EQ(0, chmod(QFile::encodeName(claim).constData(), 0644));
    ASSERT_EQ(0, chmod(QFile::encodeName(out()).constData(), 0555));
    const clsToolResult result = run({"export"_q, claim, out()}, {}, *asSomebodyElse);
    EXPECT_EQ(4, result.status);
    EXPECT_EQ(
        "Run-time error '70': Permission denied\nThe sheets can't be written to the folder " + out().toUtf8() + "\n",
        result.err);
    EXPECT_EQ(QStringList(), filesOf(out()));
    ASSERT_EQ(0, chmod(QFile::encodeName(out()).constData(), 0755));
}

TEST_F(ToolExport, ANoteThatCanNeverFitEndsTheExportBeforeItsFirstSheet)
{
    // Two words of 40 characters don't fit on one line of 60: one line for each word.
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

TEST_F(ToolExport, TheFormTypeDecidesWhichDocumentComesOut)
{
    const clsToolResult result = run({"export"_q, mdSamplePath("care-typical.zr3"_q), out()});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(QStringList {"Claim1A.doc"_q}, filesOf(out()));
    EXPECT_TRUE(bytesOf(path("out/Claim1A.doc")).startsWith("PK"));
}

TEST_F(ToolExport, AFormTypeWithoutPagesIsAFailure)
{
    clsZR3Form form;
    form.FormType = "Claim1a"_q; // case matters
    expectFailure({"export"_q, putClaim(form), out()},
        "Export: There are no pages for the form type \"Claim1a\" of this claim.\n");
}

TEST_F(ToolExport, AFigureThatCanNotBeComputedIsAFailure)
{
    clsZR3Form form;
    fill(form);
    form.FeeEarnerGroup(1)->HourlyRate = QString();
    const clsToolResult result = run({"export"_q, putClaim(form), out()});
    EXPECT_EQ(4, result.status);
    EXPECT_EQ("Run-time error '13': Type mismatch\nSchedule item 1: the hourly rate of group 1 is not an amount\n",
        result.err);
    EXPECT_EQ(QStringList(), filesOf(out()));
}

TEST_F(ToolExport, WhatAnErrorComesFromIsNamed)
{
    const struct {
        void (*spoil)(clsZR3Form &form);
        const char *error;
    } rows[] = {
        {[](clsZR3Form &form) { form.ScheduleOfTimeItem(2)->FeeEarnerUniqueID = "ID99"_q; },
            "Run-time error '91': Object variable or With block variable not set\n"
            "Schedule item 2 names a fee earner that no longer exists\n"},
        {[](clsZR3Form &form) { form.FeeEarner(1)->GroupUniqueID = QString(); },
            "Run-time error '91': Object variable or With block variable not set\n"
            "Schedule item 1 names the fee earner AB, who has no group\n"},
        {[](clsZR3Form &form) { form.ScheduleOfTimeItem(2)->TTime = "90"_q; },
            "Run-time error '9': Subscript out of range\n"
            "Schedule item 2 has the time \"90\", which is not one\n"},
        {[](clsZR3Form &form) { form.AddDisbursement()->Counsel = true; },
            "Run-time error '91': Object variable or With block variable not set\n"
            "Disbursement 1 is counsel's fee and names no counsel\n"},
        {[](clsZR3Form &form) { form.AddExpertInvoice()->VATAmount = QString(); },
            "Run-time error '13': Type mismatch\nExpert invoice 1: VAT Amount is empty\n"},
        {[](clsZR3Form &form) {
             form.FeeEarner(1)->Calls = 1;
             form.FeeEarnerGroup(1)->CallsRate = "4.00 each"_q;
         },
            "Run-time error '13': Type mismatch\n"
            "Communications, line 1 of the calls: the calls rate of group 1 is not an amount\n"},
        {[](clsZR3Form &form) { form.OutcomeOfCase.Result = 99; },
            "Run-time error '9': Subscript out of range\nOutcome of Case: Result has no entry 99\n"},
        {[](clsZR3Form &form) { form.OutcomeOfCase.XMLNode().child("costs").text().set("perhaps"); },
            "Run-time error '13': Type mismatch\n"
            "Outcome of Case: the tick Costs holds \"perhaps\", which is neither True nor False\n"},
        {[](clsZR3Form &form) { form.XMLNode().child("includepage3").text().set("perhaps"); },
            "Run-time error '13': Type mismatch\n"
            "The claim: the tick Include Page 3 holds \"perhaps\", which is neither True nor False\n"},
        {[](clsZR3Form &form) {
             form.FormType = "Claim1A"_q;
             form.ActualCostsIncurred.FixedFee = "x"_q;
         },
            "Run-time error '13': Type mismatch\nActual Costs: Fixed Fee holds \"x\", which is not an amount\n"},
        {[](clsZR3Form &form) {
             form.FormType = "Claim1A"_q;
             form.AddFASItem()->RateForUnits = QString();
         },
            "Run-time error '13': Type mismatch\nFAS item 1: Rate For Units is empty\n"},
    };
    for (const auto &row : rows) {
        clsZR3Form form;
        fill(form);
        addItem(form, "01:00");
        row.spoil(form);
        const clsToolResult result = run({"export"_q, putClaim(form), out(), "--quiet"_q});
        EXPECT_EQ(4, result.status);
        EXPECT_EQ(row.error, result.err);
        EXPECT_EQ(QStringList(), filesOf(out()));
    }
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

TEST_F(ToolExport, ADiskThatIsFullLeavesTheOldDocumentAndNothingElse)
{
    const QString claim = smallClaim();
    ASSERT_EQ(0, run({"export"_q, claim, out(), "--keep-sheets"_q}).status);
    const qint64 document = QFileInfo(path("out/Claim1.doc")).size();
    const qint64 templateSize = QFileInfo(templates() + "/Claim1 P1.doc"_q).size();
    const qint64 sheet = QFileInfo(path("out/~ZR3Temp/1(1).doc")).size();
    ASSERT_GT(document, templateSize);
    ASSERT_GT(sheet, templateSize);
    QDir(out()).removeRecursively();
    ASSERT_TRUE(QDir(folder.path()).mkpath("out"_q));
    // Either a copy of a template or a filled-in sheet can't be written.
    for (const qint64 limit : {qint64(0), templateSize - 1, templateSize + 1}) {
        SCOPED_TRACE(limit);
        for (const bool older : {false, true}) {
            if (older)
                put("out/Claim1.doc", "the older document");
            const clsToolResult result
                = run({"export"_q, claim, out(), "--force"_q}, {}, withFilesOfAtMost(rlim_t(limit)));
            EXPECT_EQ(4, result.status);
            EXPECT_EQ("", result.out);
            EXPECT_EQ(1, result.err.count("Disk full")) << result.err.constData();
            EXPECT_EQ(limit > templateSize ? 1 : 0, result.err.count("Word Automation Error: "))
                << result.err.constData();
            EXPECT_EQ(limit > templateSize ? 0 : 1, result.err.count("Run-time error '61': "))
                << result.err.constData();
            EXPECT_EQ(older ? QStringList {"Claim1.doc"_q} : QStringList(), filesOf(out()));
            EXPECT_EQ(older ? "the older document" : "(no file)", bytesOf(path("out/Claim1.doc")));
            QFile::remove(path("out/Claim1.doc"));
        }
    }
}

TEST_F(ToolExport, AnAmountThatIsNoneIsToldAndPassedOver)
{
    clsZR3Form form;
    fill(form);
    includePages(form, {1, 2});
    form.PreviousAdvice.TotalCostsIncurred = "abc"_q;
    const clsToolResult result = run({"export"_q, putClaim(form), out()});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ(
        "Word Automation Error: An error has occured during Word automation. If the problem persists please contact "
        "Velmor technical support via stating the following details:\n\n"
        "Error Number: 13\nError Description: Type mismatch\nSubroutine: SetText\n",
        result.err);
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
    EXPECT_EQ(QStringList {"{totalcostsincurred}"_q}, mdPlaceholdersIn(path("out/Claim1.doc")));
}

TEST_F(ToolExport, AFolderMayHaveANameOutsideTheCodePage)
{
    for (const QString &name : {"\u6cd5\u5f8b"_q, "O\u00b4Brien"_q}) {
        SCOPED_TRACE(name.toStdString());
        const QString target = out() + u'/' + name;
        ASSERT_TRUE(QDir().mkpath(target));
        const clsToolResult result = run({"export"_q, smallClaim(), target});
        EXPECT_EQ(0, result.status);
        EXPECT_EQ("", result.err);
        EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(target));
        EXPECT_TRUE(QDir(target).removeRecursively());
        EXPECT_EQ(QStringList(), filesOf(out()));
    }
}

TEST_F(ToolExport, ALinkThatLeadsToItselfAmongTheSheetsIsSwept)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("out/~ZR3Temp"_q));
    ASSERT_TRUE(QFile::link("loop"_q, path("out/~ZR3Temp/loop")));
    ASSERT_TRUE(QFile::link(".."_q, path("out/~ZR3Temp/up")));
    const clsToolResult result = run({"export"_q, smallClaim(), out()});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
}

TEST_F(ToolExport, AFolderAmongTheSheetsIsLeftAlone)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("out/~ZR3Temp/letters"_q));
    const QStringList names = {"a.txt"_q, "letters/dear.txt"_q, "z.txt"_q};
    for (const QString &name : names)
        put(QString("out/~ZR3Temp/"_q + name).toUtf8().constData(), name.toUtf8());
    const QByteArray claim = bytesOf(smallClaim());
    for (const bool force : {false, true}) {
        QStringList arguments {"export"_q, path("claim.zr3"), out()};
        if (force) {
            put("out/Claim1.doc", "the older document");
            arguments << "--force"_q;
        }
        const clsToolResult result = run(arguments);
        EXPECT_EQ(4, result.status);
        EXPECT_EQ("", result.out);
        EXPECT_EQ("Run-time error '75': Path/File access error\nThe sheets can't be written to the folder "
                + out().toUtf8() + "\n",
            result.err);
        EXPECT_EQ(QStringList({"a.txt"_q, "letters"_q, "z.txt"_q}), filesOf(path("out/~ZR3Temp")));
        for (const QString &name : names)
            EXPECT_EQ(name.toUtf8(), bytesOf(path("out/~ZR3Temp") + u'/' + name));
        EXPECT_EQ(force ? QStringList({"Claim1.doc"_q, "~ZR3Temp"_q}) : QStringList {"~ZR3Temp"_q}, filesOf(out()));
    }
    EXPECT_EQ("the older document", bytesOf(path("out/Claim1.doc")));
    EXPECT_EQ(claim, bytesOf(path("claim.zr3")));
}

TEST_F(ToolExport, ADocumentThatIsALinkToAnotherFileSystemIsReplacedThere)
{
    const QTemporaryDir elsewhere("/dev/shm/zr3tool_test-XXXXXX"_q);
    struct stat here = {};
    struct stat there = {};
    if (!elsewhere.isValid() || stat(QFile::encodeName(elsewhere.path()).constData(), &there) != 0
        || stat(QFile::encodeName(folder.path()).constData(), &here) != 0 || here.st_dev == there.st_dev)
        GTEST_SKIP() << "there is no other file system";
    const QString real = elsewhere.filePath("real.doc"_q);
    ASSERT_TRUE(QFile::copy(smallClaim(), real));
    ASSERT_TRUE(QFile::link(real, path("out/Claim1.doc")));
    EXPECT_EQ(5, run({"export"_q, smallClaim(), out()}).status);
    const clsToolResult result = run({"export"_q, smallClaim(), out(), "--force"_q});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_TRUE(QFileInfo(path("out/Claim1.doc")).isSymLink());
    EXPECT_TRUE(bytesOf(real).startsWith("PK"));
    EXPECT_EQ(QStringList {"real.doc"_q}, filesOf(elsewhere.path()));
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
}

TEST_F(ToolExport, ATerminalShowsTheProgressUnlessItIsToBeQuiet)
{
    if (QStandardPaths::findExecutable("script"_q).isEmpty())
        GTEST_SKIP() << "no program gives the tool a terminal";
    const QString command = "'%1' export '%2' '%3' --force"_q.arg(QStringLiteral(ZR3_TOOL), smallClaim(), out());
    const auto onATerminal = [&](const QString &options) {
        return runProgram("script"_q, {"-qec"_q, command + options, "/dev/null"_q});
    };
    const clsToolResult shown = onATerminal({});
    EXPECT_EQ(0, shown.status);
    EXPECT_TRUE(shown.out.contains("\r\033[KExporting Page 1 (1/11)")) << shown.out.constData();
    EXPECT_TRUE(shown.out.contains("\r\033[KCombining Documents (2/2)")) << shown.out.constData();
    EXPECT_TRUE(shown.out.endsWith("\r\033[K")) << "the line is cleared at the end";
    const clsToolResult quiet = onATerminal(" --quiet"_q);
    EXPECT_EQ(0, quiet.status);
    EXPECT_EQ("", quiet.out);
}

TEST_F(ToolExport, TheSheetsAreTheirOwnersAlone)
{
    // A folder left by an earlier run may have been readable by anyone.
    for (const bool leftBehind : {false, true}) {
        if (leftBehind) {
            ASSERT_EQ(0, chmod(QFile::encodeName(path("out/~ZR3Temp")).constData(), 0755));
        }
        ASSERT_EQ(0, run({"export"_q, smallClaim(), out(), "--keep-sheets"_q, "--force"_q}).status);
        struct stat status = {};
        ASSERT_EQ(0, stat(QFile::encodeName(path("out/~ZR3Temp")).constData(), &status));
        EXPECT_EQ(mode_t(S_IRWXU), status.st_mode & 07777);
    }
}

TEST_F(ToolExport, TheDocumentHasTheRightsOfTheClaim)
{
    const QString claim = smallClaim();
    for (const mode_t mode : {0600, 0640, 0644}) {
        ASSERT_EQ(0, chmod(QFile::encodeName(claim).constData(), mode));
        ASSERT_EQ(0, run({"export"_q, claim, out()}).status);
        struct stat status = {};
        ASSERT_EQ(0, stat(QFile::encodeName(path("out/Claim1.doc")).constData(), &status));
        EXPECT_EQ(mode, status.st_mode & 07777) << std::oct << mode;
        ASSERT_TRUE(QFile::remove(path("out/Claim1.doc")));
    }
}
