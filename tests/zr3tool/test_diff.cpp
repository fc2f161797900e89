// The differences between claims, as the tool prints them.

#include "tests/zr3tool/clsToolTest.h"

#include <QJsonArray>

namespace {

class ToolDiff : public clsToolTest {
protected:
    /// A claim with one item at 40.00 an hour.
    QString claimWithTime(const char *name, const char *time = "01:00")
    {
        clsZR3Form form;
        fill(form);
        form.ScheduleOfTimeItem(1)->TTime = QString::fromLatin1(time);
        form.ScheduleOfTimeItem(1)->dDate = "03/06/25"_q;
        return putClaim(form, name);
    }
    void makeFolders(const QStringList &names)
    {
        for (const QString &name : names)
            ASSERT_TRUE(QDir(folder.path()).mkpath(name));
    }
    static QJsonObject objectOf(const clsToolResult &result) { return QJsonDocument::fromJson(result.out).object(); }
};

} // namespace

TEST_F(ToolDiff, OfAClaimWithItselfPrintsNothing)
{
    for (const QString &name : sampleNames()) {
        const QString claim = mdSamplePath(name + ".zr3"_q);
        const clsToolResult result = run({"diff"_q, claim, claim});
        EXPECT_EQ(0, result.status) << name.toStdString();
        EXPECT_EQ("", result.out);
        EXPECT_EQ("", result.err);
    }
    const QString claim = claimWithTime("claim.zr3");
    const clsToolResult json = run({"diff"_q, claim, claim, "--json"_q});
    EXPECT_EQ(0, json.status);
    EXPECT_EQ("{\n \"Fields\": [],\n \"Items\": [],\n \"Totals\": []\n}\n", json.out);
}

TEST_F(ToolDiff, PrintsFieldsItemsAndTotals)
{
    const QString old = claimWithTime("old.zr3");
    const QString now = claimWithTime("new.zr3", "01:30");
    QByteArray text = bytesOf(now);
    text.replace("<surname/>", "<surname>Okafor</surname>");
    put("new.zr3", text);
    const QByteArray before = bytesOf(old);
    const clsToolResult json = run({"diff"_q, "--json"_q, old, now});
    EXPECT_EQ(3, json.status);
    EXPECT_EQ("", json.err);
    EXPECT_TRUE(json.out.startsWith(
        "{\n \"Fields\": [\n  {\n   \"Screen\": \"Client Details\",\n   \"Property\": \"Surname\",\n   \"Old\": \"\",\n"
        "   \"New\": \"Okafor\"\n  }\n ],\n \"Items\": [\n  {\n   \"List\": \"schedule\",\n   \"Change\": "
        "\"changed\",\n"
        "   \"OldItem\": 1,\n   \"NewItem\": 1,\n   \"Fields\": [\n    {\n     \"Property\": \"TTime\",\n"
        "     \"Old\": \"01:00\",\n     \"New\": \"01:30\"\n    }\n   ],\n   \"Effect\": \"20\"\n  }\n ],\n"
        " \"Totals\": [\n  {\n   \"Key\": \"ScheduleTotal\",\n   \"Old\": \"40\",\n   \"New\": \"60\"\n  },\n"))
        << json.out.constData();
    const clsToolResult lines = run({"diff"_q, old, now});
    EXPECT_EQ(3, lines.status);
    EXPECT_TRUE(lines.out.startsWith("Client Details, Surname: \"\" -> \"Okafor\"\n"
                                     "schedule 1 changed, Time: \"01:00\" -> \"01:30\", effect: 20.00\n"
                                     "Schedule of time: \"40.00\" -> \"60.00\"\n"))
        << lines.out.constData();
    const clsToolResult words = run({"diff"_q, "--json"_q, "--words"_q, old, now});
    EXPECT_EQ(3, words.status);
    const QJsonObject item = objectOf(words)["Items"_q].toArray().at(0).toObject();
    EXPECT_EQ("Time"_q, item["Fields"_q].toArray().at(0).toObject()["Property"_q].toString());
    EXPECT_EQ("20.00"_q, item["Effect"_q].toString());
    EXPECT_EQ("Schedule item 1"_q, item["Name"_q].toString());
    EXPECT_EQ("Schedule of time"_q, objectOf(words)["Totals"_q].toArray().at(0).toObject()["Key"_q].toString());
    EXPECT_EQ(before, bytesOf(old));
    EXPECT_EQ(text, bytesOf(now));
}

TEST_F(ToolDiff, AFigureThatFailsIsADifferenceLikeAnyOther)
{
    const clsToolResult result = run({"diff"_q, "--json"_q, claimWithTime("old.zr3"), claimWithTime("new.zr3", "")});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("!9"_q, objectOf(result)["Items"_q].toArray()[0].toObject()["Effect"_q].toString());
}

TEST_F(ToolDiff, ClaimsThatCanNotBeRead)
{
    const QString claim = claimWithTime("claim.zr3");
    const QString none = put("none.zr3", "no claim");
    const QString missing = path("missing.zr3");
    const clsToolResult result = run({"diff"_q, "--json"_q, claim, none});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_TRUE(result.err.startsWith(none.toUtf8() + ": Error: There was a problem")) << result.err.constData();
    const clsToolResult both = run({"diff"_q, missing, none});
    EXPECT_EQ(2, both.status);
    EXPECT_TRUE(both.err.startsWith(missing.toUtf8() + ": File Not Read: ")) << both.err.constData();
    EXPECT_TRUE(both.err.contains("\n" + none.toUtf8() + ": Error: ")) << both.err.constData();
    // A folder can't be compared with a claim.
    EXPECT_EQ(2, run({"diff"_q, folder.path(), claim}).status);
}

TEST_F(ToolDiff, FoldersAreComparedByTheNamesOfTheirClaims)
{
    makeFolders({"old"_q, "new/sub"_q, "empty"_q});
    claimWithTime("old/same.zr3");
    claimWithTime("new/sub/same.zr3");
    claimWithTime("old/longer.zr3");
    claimWithTime("new/longer.zr3", "02:00");
    claimWithTime("old/gone.zr3");
    claimWithTime("new/come.zr3");
    const clsToolResult result = run({"diff"_q, "--json"_q, path("old"), path("new")});
    EXPECT_EQ(3, result.status);
    QStringList told;
    for (const auto &value : objectOf(result)["Claims"_q].toArray()) {
        const QJsonObject claim = value.toObject();
        EXPECT_EQ(QStringList({"Fields"_q, "Items"_q, "Name"_q, "Only"_q, "Totals"_q}), claim.keys());
        told << "%1|%2|%3"_q.arg(claim["Name"_q].toString(), claim["Only"_q].toString())
                    .arg(claim["Items"_q].toArray().size());
    }
    EXPECT_EQ(QStringList({"come.zr3|new|0"_q, "gone.zr3|old|0"_q, "longer.zr3||1"_q, "same.zr3||0"_q}), told);
    const clsToolResult lines = run({"diff"_q, path("old"), path("new")});
    EXPECT_TRUE(lines.out.startsWith("come.zr3: only in the new folder\ngone.zr3: only in the old folder\n"
                                     "longer.zr3: schedule 1 changed, Time: \"01:00\" -> \"02:00\", effect: 40.00\n"))
        << lines.out.constData();
    EXPECT_EQ(0, run({"diff"_q, path("old"), path("old")}).status);
    EXPECT_EQ("{\n \"Claims\": []\n}\n", run({"diff"_q, "--json"_q, path("empty"), path("empty")}).out);
}

TEST_F(ToolDiff, ABrokenClaimOfAFolderStopsNoOther)
{
    makeFolders({"old"_q, "new"_q});
    put("old/a.zr3", "no claim");
    claimWithTime("new/a.zr3");
    claimWithTime("old/b.zr3");
    claimWithTime("new/b.zr3");
    const clsToolResult result = run({"diff"_q, "--json"_q, path("old"), path("new")});
    EXPECT_EQ(2, result.status);
    const QJsonArray claims = objectOf(result)["Claims"_q].toArray();
    ASSERT_EQ(2, claims.size());
    EXPECT_TRUE(claims[0].toObject()["Error"_q].toString().startsWith("There was a problem opening"_q));
    EXPECT_TRUE(claims[1].toObject()["Items"_q].isArray());
}
