// Several claims and folders at once: totals and the checks.

#include "tests/zr3tool/clsManyTest.h"

namespace {

class Many : public clsManyTest { };

} // namespace

TEST_F(Many, TotalsAreAListOfWhatEachClaimPrints)
{
    addClaim("b/two.zr3"_q);
    addClaim("a.zr3"_q);
    const QByteArray one = run({"totals"_q, claims() + "/a.zr3"_q}).out;
    const clsToolResult result = run({"totals"_q, claims()});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    // Each report is unchanged, but indented by three more.
    const QByteArray nested = QByteArray(one).trimmed().replace("\n", "\n   ");
    EXPECT_EQ("{\n \"Claims\": [\n  {\n   \"Path\": \"a.zr3\",\n   \"Totals\": " + nested
            + "\n  },\n  {\n   \"Path\": \"b/two.zr3\",\n   \"Totals\": " + nested + "\n  }\n ]\n}\n",
        below(result.out));
}

TEST_F(Many, AFolderIsAListAlsoOfOneClaimOrNone)
{
    ASSERT_TRUE(QDir().mkpath(claims()));
    for (const QStringList &arguments : {QStringList {"totals"_q, claims()},
             {"check"_q, "--full"_q, "--json"_q, claims()}, {"list"_q, "--json"_q, claims()}}) {
        const clsToolResult result = run(arguments);
        EXPECT_EQ(0, result.status);
        EXPECT_EQ("{\n \"Claims\": []\n}\n", result.out);
    }
    EXPECT_EQ("", run({"totals"_q, "--jsonl"_q, claims()}).out);
    addClaim("a.zr3"_q);
    EXPECT_EQ(1, claimsOf(run({"totals"_q, claims()})).size());
    // The report of a single claim is unchanged.
    EXPECT_TRUE(run({"totals"_q, claims() + "/a.zr3"_q}).out.startsWith("{\n \"FormType\": \"Claim1\",\n"));
}

TEST_F(Many, AClaimThatCanNotBeReadStopsNoOther)
{
    addClaim("a.zr3"_q);
    putBelow("b.zr3"_q, "no claim");
    addClaim("c.zr3"_q);
    const QString missing = claims() + "/gone.zr3"_q;
    const clsToolResult result = run({"totals"_q, missing, claims(), claims() + "/a.zr3"_q});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ(
        "gone.zr3: File Not Read: There was a problem reading the following path:\n\ngone.zr3\n\nThe error reported "
        "is:\n\n53 - File not found\nb.zr3: Error: "
            + m_noClaim + "\n",
        below(result.err));
    const QJsonArray told = claimsOf(result);
    ASSERT_EQ(5, told.size());
    EXPECT_TRUE(told[0].toObject()["Error"_q].toString().startsWith("There was a problem reading"_q));
    EXPECT_EQ(QStringList({"Error"_q, "Path"_q}), told[0].toObject().keys());
    EXPECT_EQ(m_noClaim, told[2].toObject()["Error"_q].toString());
    for (int i : {1, 3, 4})
        EXPECT_EQ("40", told[i].toObject()["Totals"_q].toObject()["ProfitCostsTotal"_q].toString()) << i;
}

TEST_F(Many, AFigureThatFailsIsToldWithItsPathAndAllOthersAreThere)
{
    addClaim("a.zr3"_q);
    putBelow("b.zr3"_q, bytesOf(addClaim("b.zr3"_q)).replace("<ttime>01%3A00</ttime>", "<ttime>x</ttime>"));
    const clsToolResult result = run({"totals"_q, claims()});
    EXPECT_EQ(4, result.status);
    EXPECT_TRUE(below(result.err).startsWith("b.zr3: Totals: Some figures of this claim can't be computed."))
        << result.err.constData();
    EXPECT_EQ("!9", claimsOf(result)[1].toObject()["Totals"_q].toObject()["ProfitCostsTotal"_q].toString());
}

TEST_F(Many, AreTheSameInAnyNumberOfProcesses)
{
    for (int i = 0; i < 30; ++i)
        addClaim("%1/claim %1.zr3"_q.arg(i));
    putBelow("5/bad.zr3"_q, "<no");
    const clsToolResult one = run({"totals"_q, "--jobs"_q, "1"_q, claims()});
    for (const char *jobs : {"2", "7", "100"}) {
        const clsToolResult several = run({"totals"_q, "--jobs"_q, QString::fromLatin1(jobs), claims()});
        EXPECT_EQ(one.status, several.status);
        EXPECT_EQ(one.out, several.out);
        EXPECT_EQ(one.err, several.err);
    }
}

TEST_F(Many, ALineForEachClaim)
{
    addClaim("a.zr3"_q);
    putBelow("b.zr3"_q, "no claim");
    const clsToolResult totals = run({"totals"_q, "--jsonl"_q, claims()});
    EXPECT_EQ(2, totals.status);
    const auto lines = linesOf(totals);
    ASSERT_EQ(2, lines.size());
    const QByteArray one = run({"totals"_q, claims() + "/a.zr3"_q}).out;
    EXPECT_EQ(QJsonDocument::fromJson(one).object(), lines[0]["Totals"_q].toObject());
    EXPECT_EQ("{\"Path\": \"b.zr3\",\"Error\": \"" + m_noClaim + "\"}", below(totals.out.split('\n')[1]));
    // Also for one claim.
    const clsToolResult single = run({"totals"_q, "--jsonl"_q, claims() + "/a.zr3"_q});
    EXPECT_EQ(totals.out.left(totals.out.indexOf('\n') + 1), single.out);
    const clsToolResult check = run({"check"_q, "--jsonl"_q, claims() + "/a.zr3"_q});
    EXPECT_EQ(
        "{\"Path\": \"a.zr3\",\"BlankItems\": {\"ScheduleItems\": 0,\"Disbursements\": 0,\"Message\": \"No blank items "
        "found\"}}\n",
        below(check.out));
    EXPECT_EQ("", check.err);
}

TEST_F(Many, TheShortCheckBeginsEachMessageWithItsPath)
{
    putBelow("a.zr3"_q, bytesOf(addClaim("a.zr3"_q)).replace("<ttime>01%3A00</ttime>", "<ttime>00%3A00</ttime>"));
    addClaim("b.zr3"_q);
    const clsToolResult result = run({"check"_q, claims()});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("a.zr3: Blank items: \n\nSchedule of Time Items: 1\nb.zr3: No blank items found\n", below(result.out));
}

TEST_F(Many, AFolderThatCanNotBeReadIsTold)
{
    addClaim("a.zr3"_q);
    addClaim("b/c.zr3"_q);
    ASSERT_EQ(0, chmod(QFile::encodeName(claims() + "/b"_q).constData(), 0));
    const auto asSomebodyElse = asOrdinaryUser();
    if (!asSomebodyElse)
        GTEST_SKIP() << "no other user can run the program where it lies";
    const clsToolResult result = run({"totals"_q, claims()}, {}, *asSomebodyElse);
    EXPECT_EQ(2, result.status);
    EXPECT_EQ(
        "b: Folder Not Read: The claims of this folder are left out, because it can't be read: Permission denied.\n",
        below(result.err));
    ASSERT_EQ(2, claimsOf(result).size());
    EXPECT_EQ("The claims of this folder are left out, because it can't be read: Permission denied.",
        claimsOf(result)[1].toObject()["Error"_q].toString());
    chmod(QFile::encodeName(claims() + "/b"_q).constData(), 0755);
}

TEST_F(Many, ANameThatIsNoTextIsRefusedByItself)
{
    addClaim("a.zr3"_q);
    // Through a shell, because QProcess takes only texts.
    const clsToolResult result = runProgram("/bin/sh"_q,
        {"-c"_q, "exec \"$0\" totals --jsonl \"$1/a.zr3\" \"$(printf 'b\\377.zr3')\""_q, QStringLiteral(ZR3_TOOL),
            claims()});
    EXPECT_EQ(2, result.status);
    const auto lines = linesOf(result);
    ASSERT_EQ(2, lines.size());
    EXPECT_TRUE(lines[0].contains("Totals"_q));
    EXPECT_TRUE(lines[1]["Error"_q].toString().contains("b\\xff.zr3"_q));
}

TEST_F(Many, AResultThatCanNotBeWrittenEndsTheRun)
{
    if (!QFile::exists("/dev/full"_q))
        GTEST_SKIP() << "this system has no device that is always full";
    addClaim("a.zr3"_q);
    const clsToolResult result = run({"totals"_q, claims()}, "/dev/full"_q);
    EXPECT_EQ(4, result.status);
    EXPECT_EQ("Standard output: The result could not be written.\n", result.err);
}

TEST_F(Many, AReaderThatGoesEndsTheRunInSilence)
{
    for (int i = 0; i < 40; ++i)
        addClaim("%1.zr3"_q.arg(i));
    const clsToolResult result = runProgram("/bin/bash"_q,
        {"-c"_q, "\"$0\" totals \"$1\" | head -c 100 >/dev/null; exit ${PIPESTATUS[0]}"_q, QStringLiteral(ZR3_TOOL),
            claims()});
    EXPECT_EQ(128 + SIGPIPE, result.status);
    EXPECT_EQ("", result.err);
}
