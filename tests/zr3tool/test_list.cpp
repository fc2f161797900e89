// The list of claims.

#include "tests/zr3tool/clsManyTest.h"

#include <QDateTime>

namespace {

class List : public clsManyTest {
protected:
    const QByteArray m_header
        = "path,formtype,client,reference,items,profitcosts,disbursements,fas,vat,total,counsel,all,"
          "errors,warnings,changed,error\r\n";

    QString namedClaim(const QString &name, const QString &surname, const QString &reference) const
    {
        clsZR3Form form;
        fill(form);
        form.VATRate = "20"_q;
        form.ClientDetails.Title = "Ms"_q;
        form.ClientDetails.FirstName = "Ada"_q;
        form.ClientDetails.Surname = surname;
        form.ClientDetails.CaseReferenceNumber = reference;
        for (int page = 1; page <= 13; ++page)
            form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
        form.ScheduleOfTimeItem(1)->dDate = "03/06/25"_q;
        const QString file = putBelow(name, form.XMLOutput().toLatin1());
        std::filesystem::last_write_time(
            file.toStdString(), std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(1750000000)));
        return file;
    }
    static QByteArray changed()
    {
        return QDateTime::fromSecsSinceEpoch(1750000000).toString("yyyy-MM-dd HH:mm"_q).toLatin1();
    }
};

} // namespace

TEST_F(List, IsCsvWithALineForEachClaim)
{
    namedClaim("a.zr3"_q, "Okafor"_q, "AB/1"_q);
    namedClaim("b, c.zr3"_q, "O'\"Neil\""_q, "=1+1"_q);
    const clsToolResult result = run({"list"_q, "--csv"_q, claims()});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    const QByteArray figures = ",1,40.00,0.00,,8.00,48.00,0.00,48.00,0,0," + changed() + ",\r\n";
    EXPECT_EQ(m_header + "a.zr3,Claim1,Ms Ada Okafor,AB/1" + figures
            + "\"b, c.zr3\",Claim1,\"Ms Ada O'\"\"Neil\"\"\",'=1+1" + figures,
        below(result.out));
}

TEST_F(List, IsJson)
{
    namedClaim("a.zr3"_q, "Okafor"_q, "=1+1"_q);
    const QByteArray row = "{\n   \"path\": \"a.zr3\",\n   \"formtype\": \"Claim1\",\n   \"client\": \"Ms Ada "
                           "Okafor\",\n   \"reference\": "
                           "\"=1+1\",\n   \"items\": 1,\n   \"profitcosts\": \"40.00\",\n   \"disbursements\": "
                           "\"0.00\",\n   \"fas\": \"\",\n"
                           "   \"vat\": \"8.00\",\n   \"total\": \"48.00\",\n   \"counsel\": \"0.00\",\n   \"all\": "
                           "\"48.00\",\n   \"errors\": 0,\n"
                           "   \"warnings\": 0,\n   \"changed\": \""
        + changed() + "\",\n   \"error\": \"\"\n  }";
    EXPECT_EQ("{\n \"Claims\": [\n  " + row + "\n ]\n}\n", below(run({"list"_q, "--json"_q, claims()}).out));
    EXPECT_EQ(QByteArray(row).replace("\n   ", "").replace("\n  ", "") + "\n",
        below(run({"list"_q, "--jsonl"_q, claims()}).out));
    // A single claim is a list too.
    EXPECT_EQ(1, claimsOf(run({"list"_q, "--json"_q, claims() + "/a.zr3"_q})).size());
}

TEST_F(List, IsATableForPeople)
{
    namedClaim("a.zr3"_q, "Okafor\r\nSmith"_q, "AB/1"_q);
    const clsToolResult result = run({"list"_q, "a.zr3"_q}, {}, {});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ(
        "path   formtype  client                    reference          items   profitcosts  disbursements           "
        "fas           vat         total       counsel           all  errors  warnings  changed           error\n",
        result.out.left(result.out.indexOf('\n') + 1));
    const QByteArray line = run({"list"_q, claims()}).out.split('\n')[1];
    EXPECT_TRUE(line.endsWith(
        "a.zr3  Claim1    Ms Ada Okafor Smith       AB/1                   1         40.00           0.00  "
        "                      8.00         48.00          0.00         48.00       0         0  "
        + changed()))
        << line.constData();
}

TEST_F(List, CountsErrorsAndWarningsOfTheDayThatIsGiven)
{
    namedClaim("a.zr3"_q, "Okafor"_q, "AB/1"_q);
    const auto row = [&](const char *day) {
        return linesOf(run({"list"_q, "--jsonl"_q, "--today"_q, QString::fromLatin1(day), claims()}))[0];
    };
    EXPECT_EQ(0, row("2025-06-03")["errors"_q].toInt());
    EXPECT_EQ(1, row("2025-06-02")["errors"_q].toInt()); // an item dated after today
    EXPECT_EQ(0, row("2025-06-02")["warnings"_q].toInt());
}

TEST_F(List, AClaimThatCanNotBeReadHasPathTimeAndReason)
{
    putBelow("a.zr3"_q, "no claim");
    namedClaim("b.zr3"_q, "Okafor"_q, "AB/1"_q);
    const QString file = claims() + "/a.zr3"_q;
    const QByteArray time = QFileInfo(file).lastModified().toString("yyyy-MM-dd HH:mm"_q).toLatin1();
    const clsToolResult csv = run({"list"_q, "--csv"_q, claims()});
    EXPECT_EQ(2, csv.status);
    EXPECT_EQ("a.zr3,,,,,,,,,,,,,," + time + "," + m_noClaim, below(csv.out.split('\r')[1].mid(1)));
    EXPECT_EQ("a.zr3: Error: " + m_noClaim + "\n", below(csv.err));
    const QJsonObject row = linesOf(run({"list"_q, "--jsonl"_q, claims()}))[0];
    EXPECT_TRUE(row["items"_q].isNull());
    EXPECT_EQ("", row["total"_q].toString("?"_q));
    const clsToolResult gone = run({"list"_q, "--csv"_q, "gone.zr3"_q});
    EXPECT_TRUE(gone.out.split('\r')[1].startsWith("\ngone.zr3,,,,,,,,,,,,,,,\"There was a problem reading"))
        << gone.out.constData();
}

TEST_F(List, AFigureThatFailsLeavesTheOthersAndTheCounts)
{
    const QString file = namedClaim("a.zr3"_q, "Okafor"_q, "AB/1"_q);
    putBelow("a.zr3"_q, bytesOf(file).replace("<ttime>01%3A00</ttime>", "<ttime>x</ttime>"));
    const clsToolResult result = run({"list"_q, "--csv"_q, claims()});
    EXPECT_EQ(4, result.status);
    EXPECT_TRUE(below(result.out).contains(",AB/1,1,,0.00,,,,0.00,,1,0,")) << result.out.constData();
    EXPECT_TRUE(result.out.endsWith(",\"Schedule item 1 has the time \"\"x\"\", which is not one\"\r\n"))
        << result.out.constData();
    EXPECT_EQ(
        "a.zr3: List: Some figures of this claim can't be computed. They are left empty.\nSchedule item 1 has the time "
        "\"x\", which is not one\n",
        below(result.err));
}
