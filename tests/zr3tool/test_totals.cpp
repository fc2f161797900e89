// Every figure of the bill.

#include "tests/zr3tool/clsToolTest.h"

#include <QJsonArray>

namespace {

class ToolTotals : public clsToolTest {
protected:
    /// The report of a claim, which must have that status; standard error has one message if figures fail.
    QJsonObject report(const clsZR3Form &form, int status)
    {
        const clsToolResult result = run({"totals"_q, putClaim(form)});
        EXPECT_EQ(status, result.status);
        const QByteArray failed = "Totals: Some figures of this claim can't be computed. Each of them stands as "
                                  "\"!\" and the number of its run-time error.\n";
        EXPECT_EQ(status == 0 ? QByteArray() : failed, result.err.left(failed.size()));
        words = result.err.mid(failed.size());
        QJsonParseError error;
        const QJsonObject json = QJsonDocument::fromJson(result.out, &error).object();
        EXPECT_EQ(QJsonParseError::NoError, error.error);
        return json;
    }

    /// The causes of the failures in the last report, one per line.
    QByteArray words;

    static QStringList keysInOrder(const QByteArray &json)
    {
        QStringList keys;
        static const QRegularExpression key("\"([A-Za-z0-9]+)\"\\s*:"_q);
        for (auto found = key.globalMatch(QString::fromUtf8(json)); found.hasNext();)
            keys << found.next().captured(1);
        return keys;
    }
};

std::string textOf(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact).mid(1).chopped(1).toStdString();
}

/// The text of a key.
QString at(const QJsonObject &json, const char *key)
{
    return json[QString::fromLatin1(key)].toString("(no text)"_q);
}

} // namespace

TEST_F(ToolTotals, OfEverySampleClaimAreThoseWorkedOutForIt)
{
    ASSERT_EQ(15, sampleNames().size());
    for (const QString &name : sampleNames()) {
        SCOPED_TRACE(name.toStdString());
        const QString claim = mdSamplePath(name + ".zr3"_q);
        const QByteArray before = bytesOf(claim);
        const clsToolResult result = run({"totals"_q, claim});
        EXPECT_EQ(0, result.status);
        EXPECT_EQ("", result.err);
        const QByteArray expected = bytesOf(mdSamplePath(name + ".totals.json"_q));
        const QJsonObject worked = QJsonDocument::fromJson(expected).object();
        const QJsonObject told = QJsonDocument::fromJson(result.out).object();
        ASSERT_FALSE(worked.isEmpty());
        EXPECT_EQ(worked.keys().join(u' '), told.keys().join(u' '));
        for (const QString &key : worked.keys())
            EXPECT_EQ(textOf(worked[key]), textOf(told[key])) << key.toStdString();
        EXPECT_EQ(keysInOrder(expected).join(u' '), keysInOrder(result.out).join(u' '));
        EXPECT_EQ(before, bytesOf(claim));
    }
}

TEST_F(ToolTotals, TheKeysStandInTheirOrder)
{
    clsZR3Form form;
    fill(form);
    form.AddFASItem();
    const QStringList common = {"FormType"_q, "VATRate"_q, "ScheduleItems"_q, "OrderID"_q, "InExport"_q,
        "SOTItemNumber"_q, "TimeColumn"_q, "Rate"_q, "BasicClaim"_q, "TotalEnhancementPercentage"_q, "Claim"_q,
        "FASItems"_q, "OrderID"_q, "Total"_q, "Communications"_q};
    const QStringList line = {"Kind"_q, "Line"_q, "Rate"_q, "Count"_q, "Basic"_q, "Enhancement"_q, "Claim"_q};
    const QStringList totals = {"ColumnTimeTotal"_q, "ColumnClaimTotal"_q, "ScheduleTotal"_q, "AdvocacyTotal"_q,
        "CounselDisbursementsAmountTotal"_q, "CounselDisbursementsVATTotal"_q, "NonCounselDisbursementsAmountTotal"_q,
        "NonCounselDisbursementsVATTotal"_q, "ExpertInvoicesNetTotal"_q, "ExpertInvoicesVATTotal"_q,
        "CounselFeesAmountTotal"_q, "CounselFeesVATTotal"_q, "CounselFeesTotal"_q, "FASItemsTotal"_q, "FASVATTotal"_q,
        "CommsTotal"_q, "ProfitCostsTotal"_q, "ProfitCostsVAT"_q, "AdvocacyVAT"_q, "LoadFromBillNet"_q,
        "LoadFromBillVAT"_q, "CounselAtLine"_q};
    const QStringList counsel = {"Position"_q, "AccountNumber"_q, "Gross"_q};
    const QStringList summaryOf1 = {"npc"_q, "nex"_q, "ndibs"_q, "vpc"_q, "vex"_q, "vdibs"_q, "ntotal"_q, "vtotal"_q,
        "grandtotal"_q, "ncf"_q, "vcf"_q, "cftotal"_q};
    const QStringList summaryOf1A = {"npc"_q, "nex"_q, "ndibs"_q, "vpc"_q, "vex"_q, "vdibs"_q, "nsubtotal"_q,
        "vsubtotal"_q, "nfas"_q, "vfas"_q, "ncsl"_q, "vcsl"_q, "ntotal"_q, "vtotal"_q};
    const QStringList blank = {"BlankItems"_q, "ScheduleItems"_q, "Disbursements"_q, "Message"_q};
    for (const auto &[type, summary] : {std::pair("Claim1"_q, summaryOf1), std::pair("Claim1A"_q, summaryOf1A)}) {
        form.FormType = type;
        QStringList expected = common;
        for (int i = 0; i < 6; ++i)
            expected += line;
        expected += totals;
        for (int i = 0; i < 6; ++i)
            expected += counsel;
        expected += "Summary"_q;
        expected += summary + blank;
        EXPECT_EQ(expected.join(u' '), keysInOrder(run({"totals"_q, putClaim(form)}).out).join(u' '));
    }
}

TEST_F(ToolTotals, AFigureThatFailsIsItsErrorAndAllOthersAreThere)
{
    clsZR3Form form;
    fill(form);
    addItem(form, "02:00")->Advocacy = true; // 100; but every item starts from the hourly rate
    form.FeeEarner(1)->Calls = 3; // 12
    form.FeeEarnerGroup(1)->HourlyRate = QString();
    const auto expert = form.AddExpertInvoice();
    expert->NetAmount = "200"_q;
    expert->VATAmount = "35"_q;
    const QJsonObject json = report(form, 4);

    const QJsonObject item = json["ScheduleItems"_q][0].toObject();
    EXPECT_EQ("!13"_q, at(item, "Rate"));
    EXPECT_EQ("!13"_q, at(item, "BasicClaim"));
    EXPECT_EQ("0"_q, at(item, "TotalEnhancementPercentage"));
    EXPECT_EQ("!13"_q, at(item, "Claim"));
    EXPECT_EQ(1, item["SOTItemNumber"_q].toInt());
    EXPECT_EQ("12"_q, at(json["Communications"_q][0].toObject(), "Claim"));
    EXPECT_EQ("03:00"_q, json["ColumnTimeTotal"_q][0].toString());
    EXPECT_EQ("!13"_q, json["ColumnClaimTotal"_q][0].toString());
    EXPECT_EQ("0"_q, json["ColumnClaimTotal"_q][1].toString());
    for (const char *key : {"ScheduleTotal", "AdvocacyTotal", "ProfitCostsTotal", "ProfitCostsVAT", "AdvocacyVAT",
             "LoadFromBillNet", "LoadFromBillVAT"})
        EXPECT_EQ("!13"_q, at(json, key)) << key;
    EXPECT_EQ("12"_q, at(json, "CommsTotal"));
    EXPECT_EQ("200"_q, at(json, "ExpertInvoicesNetTotal"));
    const QJsonObject summary = json["Summary"_q].toObject();
    for (const char *key : {"npc", "vpc", "ntotal", "vtotal", "grandtotal"})
        EXPECT_EQ("!13"_q, at(summary, key)) << key;
    EXPECT_EQ("200"_q, at(summary, "nex"));
    EXPECT_EQ("35"_q, at(summary, "vex"));
    EXPECT_EQ("0"_q, at(summary, "cftotal"));
    EXPECT_EQ("No blank items found"_q, at(json["BlankItems"_q].toObject(), "Message"));
}

TEST_F(ToolTotals, WhatAFailureComesFromIsToldOnceAndUpToTwentyTimes)
{
    clsZR3Form form;
    fill(form);
    addItem(form, "")->FeeEarnerUniqueID = "ID99"_q;
    form.AddDisbursement()->VAT = "x"_q;
    report(form, 4);
    EXPECT_EQ("Schedule item 2 names a fee earner that no longer exists\nSchedule item 2 has no time\n"
              "Disbursement 1: VAT holds \"x\", which is not an amount\n",
        words);
    for (int i = 0; i < 30; ++i)
        addItem(form, "");
    report(form, 4);
    EXPECT_EQ(20, words.count('\n'));
    EXPECT_TRUE(words.endsWith("Schedule item 20 has no time\n")) << words.constData();
}

TEST_F(ToolTotals, EachErrorHasItsNumber)
{
    clsZR3Form form;
    fill(form);
    addItem(form, "90"); // no colon
    addItem(form, "01:00")->FeeEarnerUniqueID = QString(); // no fee earner
    addItem(form, "999999999:00"); // 59,999,999,940 minutes
    const QJsonObject json = report(form, 4);
    const char *claims[] = {"40", "!9", "!91", "!6"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(QString::fromLatin1(claims[i]), at(json["ScheduleItems"_q][i].toObject(), "Claim"));
    EXPECT_EQ("40"_q, at(json["ScheduleItems"_q][1].toObject(), "Rate"));
    EXPECT_EQ("!91"_q, at(json["ScheduleItems"_q][2].toObject(), "Rate"));
    // The first part that fails determines the error.
    EXPECT_EQ("!9"_q, json["ColumnTimeTotal"_q][0].toString());
    EXPECT_EQ("!9"_q, json["ColumnClaimTotal"_q][0].toString());
    EXPECT_EQ("!9"_q, at(json, "ScheduleTotal"));
    EXPECT_EQ("0"_q, at(json, "AdvocacyTotal"));
    EXPECT_EQ("0"_q, at(json, "AdvocacyVAT"));
    EXPECT_EQ("!9"_q, at(json, "LoadFromBillNet"));
    const QJsonObject blank = json["BlankItems"_q].toObject();
    EXPECT_EQ("!9"_q, at(blank, "ScheduleItems"));
    EXPECT_EQ("!9"_q, at(blank, "Message"));
    EXPECT_EQ(0, blank["Disbursements"_q].toInt(-1));
}

TEST_F(ToolTotals, ASumTakesTheErrorOfItsFirstFailingPart)
{
    // Profit costs 91, experts 13, disbursements 6, added in this order.
    clsZR3Form form;
    fill(form);
    form.ScheduleOfTimeItem(1)->FeeEarnerUniqueID = QString();
    const auto expert = form.AddExpertInvoice();
    expert->NetAmount = "x"_q;
    expert->VATAmount = "x"_q;
    const auto disbursement = form.AddDisbursement();
    disbursement->Amount = "9999999999999999999999"_q;
    disbursement->VAT = "9999999999999999999999"_q;
    QJsonObject summary = report(form, 4)["Summary"_q].toObject();
    EXPECT_EQ("!91"_q, at(summary, "npc"));
    EXPECT_EQ("!13"_q, at(summary, "nex"));
    EXPECT_EQ("!6"_q, at(summary, "ndibs"));
    for (const char *key : {"ntotal", "vtotal", "grandtotal"})
        EXPECT_EQ("!91"_q, at(summary, key)) << key;

    form.DeleteScheduleOfTimeItem(1);
    summary = report(form, 4)["Summary"_q].toObject();
    for (const char *key : {"ntotal", "vtotal", "grandtotal"})
        EXPECT_EQ("!13"_q, at(summary, key)) << key;

    form.FormType = "Claim1A"_q;
    form.DeleteExpertInvoice(1);
    form.AddFASItem(); // without its amounts: also 13, but after the disbursements' 6
    summary = report(form, 4)["Summary"_q].toObject();
    EXPECT_EQ("!13"_q, at(summary, "nfas"));
    for (const char *key : {"nsubtotal", "ntotal"})
        EXPECT_EQ("!6"_q, at(summary, key)) << key;
}

TEST_F(ToolTotals, ABadBooleanFailsWhereItIsRead)
{
    clsZR3Form form;
    fill(form);
    const pugi::xml_node item = form.ScheduleOfTimeItem(1)->XMLNode();
    item.child("travel").text().set("perhaps");
    const QJsonObject json = report(form, 4);
    const QJsonObject told = json["ScheduleItems"_q][0].toObject();
    EXPECT_EQ("!13"_q, at(told, "TimeColumn"));
    EXPECT_EQ("!13"_q, at(told, "Rate"));
    EXPECT_TRUE(told["InExport"_q].toBool());
    EXPECT_EQ("!13"_q, json["ColumnTimeTotal"_q][0].toString());
}

TEST_F(ToolTotals, ANumberThatIsNoneIsReadAsFarAsItGoes)
{
    clsZR3Form form;
    fill(form);
    form.FeeEarner(1)->XMLNode().child("calls").text().set("3many");
    form.VATRate = "20 per cent"_q;
    const QJsonObject json = report(form, 0);
    EXPECT_EQ("3"_q, at(json["Communications"_q][0].toObject(), "Count"));
    EXPECT_EQ("20 per cent"_q, at(json, "VATRate"));
    EXPECT_EQ("10.4"_q, at(json, "ProfitCostsVAT")); // 20 per cent of 40 and 3 times 4
}

TEST_F(ToolTotals, TotallingLeavesTheFileAlone)
{
    clsZR3Form form;
    fill(form);
    form.AddFASItem(); // its empty VAT is set to "0" while totalling
    const QString claim = putClaim(form);
    const QByteArray before = bytesOf(claim);
    EXPECT_EQ(4, run({"totals"_q, claim}).status); // its other amounts are empty
    EXPECT_EQ(before, bytesOf(claim));
    EXPECT_EQ(QStringList {"claim.zr3"_q}, filesOf(folder.path()));
}

TEST_F(ToolTotals, ItemsAreToldInTheirOrderAndWithTheirNumbers)
{
    clsZR3Form form;
    fill(form); // one hour, 40
    addItem(form, "02:00")->Advocacy = true; // 100
    addItem(form, "03:00"); // 120
    for (int n = 1; n <= 3; ++n)
        form.ScheduleOfTimeItem(n)->OrderID = 4 - n;
    form.FormType = "Claim1A"_q;
    form.ExcludeNonAdvocacy = true;
    const QJsonObject json = report(form, 0);
    const char *claims[] = {"120", "100", "40"};
    const bool inExport[] = {false, true, false};
    const int numbers[] = {0, 1, 0};
    for (int i = 0; i < 3; ++i) {
        const QJsonObject item = json["ScheduleItems"_q][i].toObject();
        EXPECT_EQ(i + 1, item["OrderID"_q].toInt());
        EXPECT_EQ(QString::fromLatin1(claims[i]), at(item, "Claim"));
        EXPECT_EQ(inExport[i], item["InExport"_q].toBool());
        EXPECT_EQ(numbers[i], item["SOTItemNumber"_q].toInt(-1));
    }
    EXPECT_EQ("100"_q, at(json, "ScheduleTotal"));
}

TEST_F(ToolTotals, TextsAreUtf8WhateverTheyHold)
{
    clsZR3Form form;
    for (const char *number : {"\u00a3 \"1\" \\ \u20ac", "B\r\n\u00e9"})
        form.AddCounsel()->AccountNumber = QString::fromUtf8(number);
    const QJsonObject json = report(form, 0);
    EXPECT_EQ(QString::fromUtf8("\u00a3 \"1\" \\ \u20ac"), at(json["CounselAtLine"_q][0].toObject(), "AccountNumber"));
    EXPECT_EQ(QString::fromUtf8("B\r\n\u00e9"), at(json["CounselAtLine"_q][1].toObject(), "AccountNumber"));
}
