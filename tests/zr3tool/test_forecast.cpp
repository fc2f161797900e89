// What the forecast prints, and what it doesn't change.

#include "tests/zr3tool/clsToolTest.h"

#include <QJsonArray>

namespace {

class ToolForecast : public clsToolTest { };

} // namespace

TEST_F(ToolForecast, PrintsItsKeysInTheirOrder)
{
    clsZR3Form form;
    form.DebtorsDetails.Address = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8"_q;
    const QString claim = putClaim(form);
    const QByteArray before = bytesOf(claim);
    const clsToolResult result = run({"forecast"_q, "--json"_q, claim});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    qsizetype at = 0;
    for (const char *key : {"Sheets", "Page", "Sheet", "Template", "PaperPages", "SheetCount", "PaperPages", "Boxes",
             "Sheet", "Placeholder", "Property", "Row", "Column", "Size", "PrintedSize", "Lines", "State"}) {
        const QByteArray quoted = '"' + QByteArray(key) + "\":";
        // Only the first sheet's keys are compared.
        if (QByteArray(key) == "SheetCount")
            at = 0;
        at = result.out.indexOf(quoted, at);
        ASSERT_GE(at, 0) << key;
        at += quoted.size();
    }
    const QJsonObject told = QJsonDocument::fromJson(result.out).object();
    EXPECT_EQ(QStringList({"Boxes"_q, "PaperPages"_q, "SheetCount"_q, "Sheets"_q}), told.keys());
    EXPECT_EQ(10, told["SheetCount"_q].toInt());
    EXPECT_EQ(10, told["Sheets"_q].toArray().size());
    const QJsonObject box = told["Boxes"_q].toArray().first().toObject();
    EXPECT_EQ("10(1)"_q, box["Sheet"_q].toString());
    EXPECT_EQ("{address}"_q, box["Placeholder"_q].toString());
    EXPECT_EQ("DebtorsDetails.Address"_q, box["Property"_q].toString());
    EXPECT_EQ(8, box["Lines"_q].toInt());
    EXPECT_EQ(before, bytesOf(claim));
    EXPECT_EQ(QStringList({"claim.zr3"_q}), filesOf(folder.path()));
}

TEST_F(ToolForecast, PrintsATableForPeople)
{
    clsZR3Form form;
    for (int page = 3; page <= 13; ++page)
        form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
    const clsToolResult result = run({"forecast"_q, putClaim(form)});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
    EXPECT_EQ("Sheet     Pages  Template\n"
              "1(1)          1  Claim1 P1\n"
              "2(1)          1  Claim1 P2\n"
              "2 sheets, 2 paper pages\n",
        result.out);
}

TEST_F(ToolForecast, FailsAsTheExportDoes)
{
    clsZR3Form broken;
    fill(broken);
    addItem(broken, "01:00")->FeeEarnerUniqueID = "ID999"_q;
    clsZR3Form unknown;
    unknown.FormType = "Claim2"_q;
    ASSERT_TRUE(QDir(folder.path()).mkpath("out"_q));
    for (const QString &claim : {putClaim(broken, "broken.zr3"), putClaim(unknown, "unknown.zr3")}) {
        const clsToolResult told = run({"forecast"_q, claim});
        const clsToolResult exported = run({"export"_q, claim, path("out")});
        EXPECT_EQ(4, exported.status);
        EXPECT_EQ(4, told.status);
        EXPECT_EQ("", told.out);
        EXPECT_EQ(exported.err, told.err);
        EXPECT_FALSE(told.err.isEmpty());
    }
    EXPECT_EQ(2, run({"forecast"_q, path("missing.zr3")}).status);
}
