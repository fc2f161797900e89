// The full check, and the explanations of figures, as the tool prints them.

#include "tests/zr3tool/clsToolTest.h"

#include <QJsonArray>

namespace {

class ToolCheckFull : public clsToolTest {
protected:
    /// A claim with one page ticked; its one item has no time, which is found.
    QString claimWithFinding(const char *name = "claim.zr3", const char *time = "00:00")
    {
        clsZR3Form form;
        fill(form);
        form.ScheduleOfTimeItem(1)->TTime = QString::fromLatin1(time);
        form.ScheduleOfTimeItem(1)->dDate = "03/06/25"_q;
        for (int page = 1; page <= 13; ++page)
            form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
        return putClaim(form, name);
    }
    const QByteArray m_found
        = "error, Schedule of Time, 1, Item 1, 03/06/25, has a time of 00:00: enter the time, or delete the item.\n";

    static QJsonObject objectOf(const clsToolResult &result) { return QJsonDocument::fromJson(result.out).object(); }
};

class ToolWhy : public clsToolTest { };

} // namespace

TEST_F(ToolCheckFull, PrintsALineForEachFinding)
{
    const QString claim = claimWithFinding();
    const QByteArray before = bytesOf(claim);
    const clsToolResult result = run({"check"_q, "--full"_q, claim});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ(m_found, result.out);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(before, bytesOf(claim));
    EXPECT_EQ(QStringList {"claim.zr3"_q}, filesOf(folder.path()));
}

TEST_F(ToolCheckFull, PrintsThemAsJson)
{
    const QString claim = claimWithFinding();
    const clsToolResult result = run({"check"_q, "--full"_q, "--json"_q, claim});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("{\n \"Path\": \"" + claim.toUtf8()
            + "\",\n \"Findings\": [\n  {\n   \"Rule\": \"time-zero\",\n   \"Level\": \"error\",\n"
              "   \"Screen\": \"Schedule of Time\",\n   \"List\": \"schedule\",\n   \"Item\": 1,\n"
              "   \"Property\": \"TTime\",\n   \"Text\": \"Item 1, 03/06/25, has a time of 00:00: enter the time, or "
              "delete the item.\"\n  }\n ]\n}\n",
        result.out);
}

TEST_F(ToolCheckFull, ASoundClaimAndOneOfNotesEndsWithNought)
{
    EXPECT_EQ(0, run({"check"_q, "--full"_q, claimWithFinding("claim.zr3", "01:00")}).status);
    const clsToolResult note = run({"check"_q, "--full"_q, claimWithFinding("claim.zr3", "03:00")});
    EXPECT_EQ(0, note.status);
    EXPECT_EQ("note, Schedule of Time, 1, Item 1, 03/06/25, takes 03:00 and has no description: say what was done.\n",
        note.out);
}

TEST_F(ToolCheckFull, TakesAnotherDayThanToday)
{
    const QString claim = claimWithFinding("claim.zr3", "01:00");
    EXPECT_EQ(0, run({"check"_q, "--full"_q, claim, "--today"_q, "2025-06-03"_q}).status);
    const clsToolResult result = run({"check"_q, "--full"_q, claim, "--today=2025-06-02"_q});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("error, Schedule of Time, 1, Item 1, 03/06/25, is dated after today, 02/06/25: correct the date.\n",
        result.out);
}

TEST_F(ToolCheckFull, LooksThroughWhatIsLeftOfABrokenClaim)
{
    const QString claim = claimWithFinding();
    QByteArray text = bytesOf(claim);
    text.replace("<disbursements/>",
        "<disbursements><disbursement><orderid>1</orderid><counsel>Perhaps</counsel></disbursement></disbursements>");
    put("claim.zr3", text);
    const clsToolResult result = run({"check"_q, "--full"_q, claim});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_TRUE(result.out.startsWith("error, Disbursements, 1, Disbursement 1: the tick Counsel holds"));
    EXPECT_TRUE(result.out.endsWith(m_found));
}

TEST_F(ToolCheckFull, TakesTheCostsLimitOfTheClaim)
{
    const QString claim = claimWithFinding("claim.zr3", "01:00"); // 40.00
    QByteArray text = bytesOf(claim);
    text.replace("</vzrform>", "<costslimit>39%2E99</costslimit></vzrform>");
    put("claim.zr3", text);
    EXPECT_TRUE(run({"check"_q, "--full"_q, claim}).out.startsWith("error, Costs Limit, 0, The costs are 40.00 of"));
}

TEST_F(ToolCheckFull, TellsOfWhatIsNotPrintedAtItsOwnSize)
{
    clsZR3Form form;
    form.DebtorsDetails.Address = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8"_q;
    // Counsel's fee is the first of the list and not counted among the others, the second of which is too long.
    const QString descriptions[] = {"Brief fee"_q, "Court fee"_q, "Interpreter "_q.repeated(40)};
    for (const QString &description : descriptions) {
        const auto item = form.AddDisbursement();
        item->Counsel = description == descriptions[0];
        item->Description = description;
        item->Amount = "10.00"_q;
        item->VAT = "2.00"_q;
    }
    for (int page : {1, 2, 3, 4, 5, 6, 8, 9})
        form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
    const QString claim = putClaim(form);
    const QJsonObject told = objectOf(run({"check"_q, "--full"_q, "--json"_q, claim}));
    QStringList found;
    for (const QJsonValue &value : told["Findings"_q].toArray()) {
        const QJsonObject finding = value.toObject();
        if (finding["Rule"_q] == "paper"_q)
            found << "%1|%2|%3|%4"_q.arg(finding["Screen"_q].toString(), finding["List"_q].toString())
                         .arg(finding["Item"_q].toInt())
                         .arg(finding["Property"_q].toString());
    }
    EXPECT_EQ(QStringList({"Disbursements|disbursements|3|Description"_q, "Debtor's Details||0|Address"_q}), found);
    EXPECT_EQ(QStringList {"claim.zr3"_q}, filesOf(folder.path()));
}

TEST_F(ToolCheckFull, SeveralClaimsAreAList)
{
    const QString found = claimWithFinding("a.zr3");
    const QString fine = claimWithFinding("b.zr3", "01:00");
    const QString none = put("c.zr3", "no claim");
    const QString missing = path("missing.zr3");
    const clsToolResult lines = run({"check"_q, "--full"_q, found, fine});
    EXPECT_EQ(3, lines.status);
    EXPECT_EQ(found.toUtf8() + ": " + m_found, lines.out);
    const clsToolResult json = run({"check"_q, "--full"_q, none, missing, found, fine, "--json"_q});
    EXPECT_EQ(3, json.status); // the highest of 2, 2, 3 and 0
    EXPECT_TRUE(json.err.startsWith(none.toUtf8() + ": Error: There was a problem")) << json.err.constData();
    EXPECT_TRUE(json.err.contains("\n" + missing.toUtf8() + ": File Not Read: ")) << json.err.constData();
    const QJsonArray claims = objectOf(json)["Claims"_q].toArray();
    ASSERT_EQ(4, claims.size());
    EXPECT_EQ(QStringList({"Error"_q, "Path"_q}), claims[0].toObject().keys());
    // Without the title of the box.
    EXPECT_TRUE(claims[0].toObject()["Error"_q].toString().startsWith("There was a problem opening"_q));
    EXPECT_TRUE(claims[1].toObject()["Error"_q].toString().startsWith("There was a problem reading"_q));
    EXPECT_EQ(found, claims[2].toObject()["Path"_q].toString());
    EXPECT_EQ(1, claims[2].toObject()["Findings"_q].toArray().size());
    EXPECT_EQ(0, claims[3].toObject()["Findings"_q].toArray().size());
}

TEST_F(ToolCheckFull, AFolderStandsForItsClaims)
{
    for (const char *sub : {"b", "Recovered", ".hidden", "b/deep", "empty"})
        ASSERT_TRUE(QDir(folder.path()).mkpath(QString::fromLatin1(sub)));
    for (const char *name : {"c.ZR3", "B.zr3", "b/deep/x.zr3", "b/a.zr3", "Recovered/r.zr3", ".hidden/h.zr3", ".d.zr3"})
        claimWithFinding(name, "01:00");
    put("notes.txt", "no claim");
    ASSERT_TRUE(QFile::link(path("b"), path("linked")));
    const clsToolResult result = run({"check"_q, "--full"_q, "--json"_q, folder.path()});
    EXPECT_EQ(0, result.status);
    QStringList paths;
    for (const auto &claim : objectOf(result)["Claims"_q].toArray())
        paths << claim.toObject()["Path"_q].toString();
    EXPECT_EQ(QStringList({path("B.zr3"), path("b/a.zr3"), path("b/deep/x.zr3"), path("c.ZR3")}), paths);
    const clsToolResult empty = run({"check"_q, "--full"_q, "--json"_q, path("empty")});
    EXPECT_EQ(0, empty.status);
    EXPECT_EQ(QStringList {"Claims"_q}, objectOf(empty).keys());
}

TEST_F(ToolCheckFull, AClaimThatCanNotBeRead)
{
    const clsToolResult result = run({"check"_q, "--full"_q, "--json"_q, path("missing.zr3")});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_TRUE(result.err.startsWith("File Not Read: ")) << result.err.constData();
}

TEST_F(ToolCheckFull, TheShortCheckStaysAsItIs)
{
    const clsToolResult result = run({"check"_q, claimWithFinding()});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("Blank items: \n\nSchedule of Time Items: 1\n", result.out);
}

TEST_F(ToolWhy, PrintsTheStepsOfAFigure)
{
    clsZR3Form form;
    fill(form);
    form.FeeEarnerGroup(1)->Reference = "A"_q;
    const QString claim = putClaim(form);
    const clsToolResult result = run({"why"_q, claim, "schedule"_q, "1"_q});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_EQ("{\n \"Figure\": \"40\",\n \"Steps\": [\n"
              "  {\n   \"Text\": \"Fee earner AB.\",\n   \"Value\": \"group A\"\n  },\n"
              "  {\n   \"Text\": \"Hourly rate of the group: nothing that is ticked takes another.\",\n"
              "   \"Value\": \"40\"\n  },\n"
              "  {\n   \"Text\": \"01:00 at 40.00: 60 minutes, rounded to the penny.\",\n   \"Value\": \"40\"\n  },\n"
              "  {\n   \"Text\": \"Percentages together.\",\n   \"Value\": \"0\"\n  },\n"
              "  {\n   \"Text\": \"Enhancement of 0 % of 40.00.\",\n   \"Value\": \"0\"\n  },\n"
              "  {\n   \"Text\": \"Claim.\",\n   \"Value\": \"40\"\n  }\n ]\n}\n",
        result.out);
    const clsToolResult total = run({"why"_q, claim, "total"_q, "grandtotal"_q});
    EXPECT_EQ("47"_q, QJsonDocument::fromJson(total.out)["Figure"_q].toString()); // with VAT at 17.5 per cent
    EXPECT_EQ(
        "40"_q, QJsonDocument::fromJson(run({"why"_q, claim, "list"_q, "profitcosts"_q}).out)["Figure"_q].toString());
    EXPECT_EQ(
        "0"_q, QJsonDocument::fromJson(run({"why"_q, claim, "communications"_q, "2/1"_q}).out)["Figure"_q].toString());
}

TEST_F(ToolWhy, AFigureThatFailsEndsWithFour)
{
    clsZR3Form form;
    fill(form);
    addItem(form, "");
    form.AddDisbursement();
    QByteArray text = form.XMLOutput().toLatin1();
    text.replace(
        "<disbursement><orderid>1</orderid><counsel>False", "<disbursement><orderid>1</orderid><counsel>Perhaps");
    const QString claim = put("claim.zr3", text);
    const clsToolResult item = run({"why"_q, claim, "schedule"_q, "2"_q});
    EXPECT_EQ(4, item.status);
    EXPECT_EQ("!9"_q, QJsonDocument::fromJson(item.out)["Figure"_q].toString());
    EXPECT_EQ("!9"_q, QJsonDocument::fromJson(run({"why"_q, claim, "total"_q, "npc"_q}).out)["Figure"_q].toString());
    EXPECT_EQ("!13"_q, QJsonDocument::fromJson(run({"why"_q, claim, "total"_q, "ndibs"_q}).out)["Figure"_q].toString());
    EXPECT_EQ(0, run({"why"_q, claim, "schedule"_q, "1"_q}).status);
}

TEST_F(ToolWhy, AFigureThatThereIsNotIsWrongUsage)
{
    clsZR3Form form;
    fill(form);
    const QString claim = putClaim(form);
    for (const QStringList &which : {QStringList {"schedule"_q, "2"_q}, {"total"_q, "nfas"_q}, {"list"_q, "client"_q},
             {"communications"_q, "3/1"_q}, {"bill"_q, "1"_q}}) {
        const clsToolResult result = run(QStringList {"why"_q, claim} + which);
        EXPECT_EQ(1, result.status) << which.join(u' ').toStdString();
        EXPECT_EQ("", result.out);
        EXPECT_TRUE(result.err.startsWith("Usage:\n"));
    }
    EXPECT_EQ(2, run({"why"_q, path("missing.zr3"), "schedule"_q, "1"_q}).status);
}
