// Tables from a claim and into it, as the tool prints and reads them.

#include "tests/zr3tool/clsToolTest.h"

namespace {

class ToolTable : public clsToolTest {
protected:
    /// A claim with a fee earner and an item at 40.00 an hour.
    QString claimWithItem(const char *description = "Work")
    {
        clsZR3Form form;
        fill(form);
        form.ScheduleOfTimeItem(1)->dDate = "03/06/25"_q;
        form.ScheduleOfTimeItem(1)->Description = QString::fromUtf8(description);
        return putClaim(form);
    }
};

class ToolImport : public ToolTable {
protected:
    clsToolResult import(const QByteArray &rows, const QStringList &options = {})
    {
        m_claim = claimWithItem();
        return run(QStringList {"import"_q, m_claim, path("new.zr3"), "--items"_q, put("rows.csv", rows)} + options);
    }
    /// The schedule of the new claim; empty if there is none.
    QByteArray schedule() const
    {
        return isWritten() ? run({"table"_q, path("new.zr3"), "schedule"_q}).out : QByteArray();
    }
    bool isWritten() const { return QFile::exists(path("new.zr3")); }

    QString m_claim;
};

const QByteArray Header = "orderid,feeearner,date,code,description,time,advocacy,counsel,travel,waiting,usehourlyrate,"
                          "includeinenhancements,enhancement,rate,claim\r\n";
const QByteArray First = "1,AB,03/06/2025,ACT,Work,01:00,no,no,no,no,no,no,,40.00,40.00\r\n";

} // namespace

TEST_F(ToolTable, PrintsTheScheduleAsCsv)
{
    const QString claim = claimWithItem("=1+1, \"so\"\r\nand é");
    const QByteArray before = bytesOf(claim);
    const clsToolResult result = run({"table"_q, claim, "schedule"_q});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(
        Header + "1,AB,03/06/2025,ACT,\"'=1+1, \"\"so\"\"\r\nand \xC3\xA9\",01:00,no,no,no,no,no,no,,40.00,40.00\r\n",
        result.out);
    EXPECT_EQ(before, bytesOf(claim));
}

TEST_F(ToolTable, PrintsAllListsOfAllSamples)
{
    for (const QString &name : sampleNames())
        for (const char *list : {"schedule", "disbursements", "experts", "joint", "fas", "communications", "counsel",
                 "feeearners", "groups", "enhancements", "totals"}) {
            const clsToolResult result = run({"table"_q, mdSamplePath(name + ".zr3"_q), QString::fromLatin1(list)});
            EXPECT_EQ(0, result.status) << name.toStdString() << ' ' << list << result.err.constData();
            EXPECT_FALSE(result.out.startsWith('\r'));
        }
}

TEST_F(ToolTable, AFigureThatFailsEndsWithFour)
{
    clsZR3Form form;
    fill(form);
    addItem(form, "soon");
    const clsToolResult result = run({"table"_q, putClaim(form), "schedule"_q});
    EXPECT_EQ(4, result.status);
    EXPECT_TRUE(result.out.endsWith("2,AB,,ACT,,soon,no,no,no,no,no,no,,40.00,!9\r\n")) << result.out.constData();
    EXPECT_TRUE(result.err.startsWith("Table: Some figures of this list can't be computed.")) << result.err.constData();
    EXPECT_TRUE(result.err.contains("Schedule item 2"));
}

TEST_F(ToolTable, AClaimThatCanNotBeRead)
{
    const clsToolResult result = run({"table"_q, path("missing.zr3"), "schedule"_q});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("", result.out);
}

TEST_F(ToolImport, AddsTheRowsAndWritesTheNewFile)
{
    const clsToolResult result
        = import("Date;Fee Earner;Code;Time;Description\n4/6/25;AB;DPL;1:30;\"a; b\"\n;AB;act;30;\n");
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(Header + First + "2,AB,04/06/2025,DPL,a; b,01:30,no,no,no,no,no,no,,40.00,60.00\r\n"
            + "3,AB,,ACT,,00:30,no,no,no,no,no,no,,40.00,20.00\r\n",
        schedule());
    // The claim itself is unchanged; the new one is written like a save.
    EXPECT_EQ(First, run({"table"_q, m_claim, "schedule"_q}).out.mid(Header.size()));
    clsZR3Form written;
    ASSERT_TRUE(written.LoadXML(path("new.zr3")));
    EXPECT_EQ(path("new.zr3"), written.path());
    EXPECT_FALSE(written.Version().isEmpty());
}

TEST_F(ToolImport, AWrongRowKeepsAllFromBeingWritten)
{
    const clsToolResult result = import("feeearner,code,time,date\nAB,ACT,1:00,\nJPR,ACT,1:00,31/09/25\n\nAB,ACT,x,\n");
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ("Import: Row 2 (line 3): No fee earner \"JPR\" in this claim; September has 30 days.\n"
              "Import: Row 3 (line 5): \"x\" is no time.\n",
        result.err);
    EXPECT_FALSE(isWritten());
}

TEST_F(ToolImport, DoublesArePassedByUnlessTheyAreAskedFor)
{
    const QByteArray rows = "feeearner,code,time,date,description\nAB,ACT,60,3/6/25,Work\nAB,ACT,60,3/6/25,More\n";
    const clsToolResult once = import(rows);
    EXPECT_EQ(0, once.status);
    EXPECT_EQ("Import: Row 1 (line 2): As item 1 of the claim; passed by.\n", once.err);
    EXPECT_EQ(2, schedule().count("01:00"));
    const clsToolResult all = import(rows, {"--doubles"_q});
    EXPECT_EQ(0, all.status);
    EXPECT_EQ("", all.err);
    EXPECT_EQ(3, schedule().count("01:00"));
}

TEST_F(ToolImport, ColumnsByOtherNamesAndUnknownOnes)
{
    const clsToolResult result = import("Who,Activity,Hours,Matter\nAB,DPL,1.5,M\n",
        {"--map"_q, "who=feeearner"_q, "--map"_q, "Activity=code"_q, "--map=HOURS=time"_q, "--map=Day=date"_q});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("Import: The table has no column \"Day\".\n"
              "Import: The column \"Matter\" is unknown and was passed by.\n",
        result.err);
    EXPECT_TRUE(schedule().contains("2,AB,,DPL,,01:30,"));
}

TEST_F(ToolImport, TablesThatAreNone)
{
    struct Row {
        QByteArray rows;
        const char *message;
    };
    const Row rows[] = {
        {"", "Import: No line of the table names its columns.\n"},
        {"feeearner,date\nAB,\n", "Import: The table lacks a column: code, time.\n"},
        {"feeearner,code,time\nAB,ACT,\"1\n", "Import: The quotes that open in line 2 are not closed.\n"},
        {QByteArray("feeearner,code,time\nAB,ACT,1\0", 30),
            "Import: The table holds zero bytes, which no text has: save it as CSV in UTF-8.\n"},
        {QByteArray(5000, ','), "Import: Line 1 has more than 1000 cells.\n"},
    };
    for (const Row &row : rows) {
        const clsToolResult result = import(row.rows);
        EXPECT_EQ(3, result.status) << row.message;
        EXPECT_EQ(row.message, result.err);
        EXPECT_FALSE(isWritten());
    }
}

TEST_F(ToolImport, FilesThatCanNotBeRead)
{
    const QString claim = claimWithItem();
    const clsToolResult missing = run({"import"_q, claim, path("new.zr3"), "--items"_q, path("none.csv")});
    EXPECT_EQ(2, missing.status);
    EXPECT_TRUE(missing.err.startsWith("Import: The table " + path("none.csv").toUtf8() + " can't be read: "))
        << missing.err.constData();
    EXPECT_EQ(2, run({"import"_q, claim, path("new.zr3"), "--items"_q, folder.path()}).status);
    QFile huge(path("huge.csv"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    ASSERT_TRUE(huge.resize(100 * 1024 * 1024));
    const clsToolResult large = run({"import"_q, claim, path("new.zr3"), "--items"_q, path("huge.csv")});
    EXPECT_EQ(2, large.status);
    EXPECT_EQ("Import: The table " + path("huge.csv").toUtf8() + " is larger than 32 megabytes.\n", large.err);
    EXPECT_EQ(2, run({"import"_q, path("missing.zr3"), path("new.zr3"), "--items"_q, path("huge.csv")}).status);
    EXPECT_FALSE(isWritten());
}

TEST_F(ToolImport, AFullDiskIsAFailure)
{
    const QString claim = claimWithItem();
    const QString rows = put("rows.csv", "feeearner,code,time\nAB,ACT,1:00\n");
    const clsToolResult result
        = run({"import"_q, claim, path("new.zr3"), "--items"_q, rows}, {}, withFilesOfAtMost(1024));
    EXPECT_EQ(4, result.status);
    EXPECT_TRUE(result.err.contains("File Not Saved")) << result.err.constData();
}

TEST_F(ToolImport, WhatTablePrintsComesBackTheSame)
{
    for (const QString &name : sampleNames()) {
        const QString sample = mdSamplePath(name + ".zr3"_q);
        clsScriptedUserInterface user;
        const clsUserInterfaceScope scope(user);
        clsZR3Form emptied;
        ASSERT_TRUE(emptied.LoadXML(sample));
        while (!emptied.ScheduleOfTimeItemsCollection().empty())
            emptied.DeleteScheduleOfTimeItem(1);
        const QString claim = putClaim(emptied);
        const QString rows = put("rows.csv", run({"table"_q, sample, "schedule"_q}).out);
        const clsToolResult result = run({"import"_q, claim, path("new.zr3"), "--items"_q, rows});
        EXPECT_EQ(0, result.status) << name.toStdString() << result.err.constData();
        EXPECT_EQ(0, run({"diff"_q, sample, path("new.zr3")}).status) << name.toStdString();
    }
}

TEST_F(ToolImport, TenThousandRows)
{
    QByteArray rows = "feeearner,date,code,time,description\n";
    for (int row = 0; row < 10'000; ++row)
        rows += "AB,3/6/25,ACT,1:00,\"Attending client, call " + QByteArray::number(row) + "\"\n";
    EXPECT_EQ(0, import(rows).status);
    EXPECT_EQ(10'002, schedule().count('\n'));
}
