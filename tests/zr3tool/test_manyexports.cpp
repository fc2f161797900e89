// The documents of several claims.

#include "tests/zr3tool/clsManyTest.h"

#include <QElapsedTimer>

namespace {

class ManyExports : public clsManyTest {
protected:
    clsToolResult exported(const QStringList &more = {}) const
    {
        return run(QStringList {"export"_q, claims(), out()} + more);
    }
    /// Copies a claim with many sheets that many times.
    void addLongClaims(int count) const
    {
        const QByteArray claim = bytesOf(mdSamplePath("many-sheets.zr3"_q));
        for (int i = 0; i < count; ++i)
            putBelow("%1.zr3"_q.arg(i), claim);
    }
    /// Expects each document in the folder to be complete.
    void expectWholeDocuments() const
    {
        const QByteArray whole = bytesOf(out() + "/whole.doc"_q);
        for (const QString &name : filesOf(out())) {
            EXPECT_TRUE(name.endsWith(".doc"_q)) << name.toStdString();
            EXPECT_EQ(whole, bytesOf(out() + u'/' + name)) << name.toStdString();
        }
    }
};

} // namespace

TEST_F(ManyExports, AreNamedAfterTheirClaims)
{
    addClaim("Hartwell disrepair.zr3"_q);
    addClaim("a.b.zr3"_q, "Claim1A"_q);
    const clsToolResult result = exported();
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(QStringList({"Hartwell disrepair Claim1.doc"_q, "a.b Claim1A.doc"_q}), filesOf(out()));
}

TEST_F(ManyExports, OneClaimIsNamedAfterItsForm)
{
    const QString claim = addClaim("Hartwell.zr3"_q);
    EXPECT_EQ(0, run({"export"_q, claim, out()}).status);
    EXPECT_EQ(0, run({"export"_q, "--jsonl"_q, "--force"_q, claim, out()}).status);
    EXPECT_EQ(QStringList {"Claim1.doc"_q}, filesOf(out()));
    const QByteArray single = bytesOf(out() + "/Claim1.doc"_q);
    // The same bytes under another name.
    EXPECT_EQ(0, exported().status);
    EXPECT_EQ(single, bytesOf(out() + "/Hartwell Claim1.doc"_q));
}

TEST_F(ManyExports, ClaimsOfOneNameAreNumberedInTheOrderOfTheirPaths)
{
    addClaim("a/claim.zr3"_q);
    putBelow("b/claim.zr3"_q, "no claim");
    addClaim("c/claim.zr3"_q, "Claim1A"_q);
    addClaim("d/claim.ZR3"_q);
    addClaim("d/other.zr3"_q);
    const clsToolResult result = exported({"--jobs"_q, "3"_q, "--jsonl"_q});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ(
        QStringList({"claim Claim1 (4).doc"_q, "claim Claim1.doc"_q, "claim Claim1A (3).doc"_q, "other Claim1.doc"_q}),
        filesOf(out()));
    QStringList documents;
    for (const QJsonObject &line : linesOf(result))
        documents << line["Document"_q].toString().section(u'/', -1);
    EXPECT_EQ(QStringList({"claim Claim1.doc"_q, ""_q, "claim Claim1A (3).doc"_q, "claim Claim1 (4).doc"_q,
                  "other Claim1.doc"_q}),
        documents);
    EXPECT_EQ(m_noClaim, linesOf(result)[1]["Error"_q].toString());
}

TEST_F(ManyExports, ADocumentThatIsThereStopsNoOther)
{
    addClaim("a.zr3"_q);
    addClaim("b.zr3"_q);
    putBelow("../out/a Claim1.doc"_q, "mine");
    const clsToolResult result = exported();
    EXPECT_EQ(5, result.status);
    EXPECT_EQ(
        "a.zr3: Export: The document " + out().toUtf8() + "/a Claim1.doc exists already. Give --force to replace it.\n",
        below(result.err));
    EXPECT_EQ("mine", bytesOf(out() + "/a Claim1.doc"_q));
    EXPECT_EQ(QStringList({"a Claim1.doc"_q, "b Claim1.doc"_q}), filesOf(out()));
    EXPECT_EQ(0, exported({"--force"_q}).status);
    EXPECT_EQ(bytesOf(out() + "/b Claim1.doc"_q), bytesOf(out() + "/a Claim1.doc"_q));
}

TEST_F(ManyExports, ADocumentThatIsNewerThanItsClaimIsPassedBy)
{
    setAge(addClaim("done.zr3"_q), 100);
    setAge(addClaim("changed.zr3"_q), 100);
    addClaim("new.zr3"_q);
    for (const char *name : {"done", "changed"})
        putBelow("../out/%1 Claim1.doc"_q.arg(QString::fromLatin1(name)), "made before");
    setAge(out() + "/done Claim1.doc"_q, 50);
    setAge(out() + "/changed Claim1.doc"_q, 150);
    const clsToolResult result = exported({"--newer"_q, "--jsonl"_q});
    EXPECT_EQ(5, result.status); // an older document may not be replaced
    const auto lines = linesOf(result);
    ASSERT_EQ(3, lines.size());
    EXPECT_TRUE(lines[0].contains("Error"_q));
    EXPECT_TRUE(lines[1]["PassedBy"_q].toBool());
    EXPECT_FALSE(lines[2].contains("PassedBy"_q));
    EXPECT_EQ("made before", bytesOf(out() + "/done Claim1.doc"_q));
    EXPECT_EQ(0, exported({"--newer"_q, "--force"_q}).status);
    EXPECT_EQ("made before", bytesOf(out() + "/done Claim1.doc"_q));
    EXPECT_EQ(bytesOf(out() + "/new Claim1.doc"_q), bytesOf(out() + "/changed Claim1.doc"_q));
}

TEST_F(ManyExports, KeepTheirSheetsApart)
{
    addClaim("a.zr3"_q);
    addClaim("b/a.zr3"_q);
    EXPECT_EQ(0, exported({"--keep-sheets"_q}).status);
    EXPECT_EQ(
        QStringList({"a Claim1 (2).doc"_q, "a Claim1.doc"_q, "~ZR3Temp a"_q, "~ZR3Temp a (2)"_q}), filesOf(out()));
    EXPECT_EQ(QStringList {"1(1).doc"_q}, filesOf(out() + "/~ZR3Temp a (2)"_q));
}

TEST_F(ManyExports, ALongNameIsCutShort)
{
    addClaim(QString(251, u'n') + ".zr3"_q);
    addClaim("b/"_q + QString(251, u'n') + ".zr3"_q);
    EXPECT_EQ(0, exported().status);
    EXPECT_EQ(2, filesOf(out()).size());
}

TEST_F(ManyExports, AMissingFolderIsToldForEachClaim)
{
    addClaim("a.zr3"_q);
    addClaim("b.zr3"_q);
    const clsToolResult result = run({"export"_q, claims(), path("missing")});
    EXPECT_EQ(4, result.status);
    EXPECT_EQ(2, result.err.count(": Export Path: The selected Export Path does not exist."));
}

TEST_F(ManyExports, StopWithinASecondAndLeaveNothingHalfDone)
{
    addLongClaims(60);
    ASSERT_EQ(0, run({"export"_q, claims() + "/0.zr3"_q, folder.path()}).status);
    ASSERT_TRUE(QFile::copy(path("Claim1.doc"), out() + "/whole.doc"_q));
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess process;
        process.start(QStringLiteral(ZR3_TOOL), {"export"_q, "--jobs"_q, "3"_q, "--force"_q, claims(), out()});
        ASSERT_TRUE(process.waitForStarted());
        ::usleep(300'000 + 70'000 * signal);
        QElapsedTimer clock;
        clock.start();
        ASSERT_EQ(0, ::kill(pid_t(process.processId()), signal));
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_LT(clock.elapsed(), 1000);
        EXPECT_EQ(QProcess::CrashExit, process.exitStatus()); // ended by the signal
        EXPECT_EQ(signal, process.exitCode());
        expectWholeDocuments();
        EXPECT_LT(filesOf(out()).size(), 61);
    }
}

TEST_F(ManyExports, AProcessThatIsKilledCostsOneClaim)
{
    addLongClaims(12);
    QProcess process;
    process.start(QStringLiteral(ZR3_TOOL), {"export"_q, "--jobs"_q, "2"_q, "--jsonl"_q, claims(), out()});
    ASSERT_TRUE(process.waitForStarted());
    ::usleep(200'000);
    const QString own = QString::number(process.processId());
    const pid_t worker = bytesOf("/proc/%1/task/%1/children"_q.arg(own)).split(' ').first().toInt();
    ASSERT_GT(worker, 0);
    ASSERT_EQ(0, ::kill(worker, SIGKILL));
    ASSERT_TRUE(process.waitForFinished());
    const QByteArray told = process.readAllStandardError();
    EXPECT_EQ(4, process.exitCode());
    EXPECT_EQ(1, told.count('\n')) << told.constData();
    EXPECT_TRUE(told.contains(": Claim: The process that worked on this claim was ended by signal 9."))
        << told.constData();
    EXPECT_EQ(11, filesOf(out()).size());
    EXPECT_EQ(11, filesOf(out()).filter(".doc"_q).size());
}
