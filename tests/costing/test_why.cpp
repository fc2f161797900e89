// How the figures of the bill are worked out, step by step.

#include "costing/checking/mdWhy.h"
#include "costing/mdBillFigures.h"
#include "costing/mdTotalsReport.h"
#include "tests/formdata/clsClaimTest.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Why : public clsClaimTest {
protected:
    void SetUp() override
    {
        group = claim.addGroup();
        group->Reference = "A"_q;
        group->Name = "Partner"_q;
        feeEarner = claim.addFeeEarner(group, "MO");
        item = claim.addItem(feeEarner, "03:20");
    }

    /// The steps, each as sentence, bar, value. Also checks that the claim is unchanged.
    QStringList steps(const char *kind, const char *which) const
    {
        const QString before = form.XMLOutput();
        const auto why = mdWhy(form, QString::fromLatin1(kind), QString::fromLatin1(which));
        EXPECT_EQ(before, form.XMLOutput());
        if (!why)
            return {"nothing"_q};
        QStringList result;
        for (const clsWhyStep &step : why->steps())
            result << step.sentence() + u'|' + step.Value;
        EXPECT_EQ(why->steps().back().Value, why->figure());
        EXPECT_EQ(why->figure().startsWith(u'!'), why->hasFailed());
        return result;
    }
    const QStringList nothing = {"nothing"_q};

    clsTestClaim::Group group;
    clsTestClaim::FeeEarner feeEarner;
    clsTestClaim::Item item;
};

} // namespace

TEST_F(Why, OfAnItem)
{
    // 3 1/3 hours at 50.00 is 166.67, rounded; 60 per cent of that 100.002; together 266.672, which becomes 266.67.
    item->Advocacy = true;
    group->Enhance = true;
    group->EnhancementRate = "50.00"_q;
    const auto listed = claim.addEnhancement("10");
    listed->Name = "Exceptional speed"_q;
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = listed->UniqueID();
    EXPECT_EQ(QStringList({"Fee earner MO: Partner.|group A"_q, "Advocacy rate of the group: Advocacy is ticked.|50"_q,
                  "03:20 at 50.00: 200 minutes, rounded to the penny.|166.67"_q, "Enhancement of group A.|50"_q,
                  "Exceptional speed.|10"_q, "Percentages together.|60"_q, "Enhancement of 60 % of 166.67.|100.002"_q,
                  "Claim.|266.67"_q}),
        steps("schedule", "1"));
}

TEST_F(Why, OfAnItemWithoutEnhancements)
{
    EXPECT_EQ(QStringList({"Fee earner MO: Partner.|group A"_q,
                  "Hourly rate of the group: nothing that is ticked takes another.|40"_q,
                  "03:20 at 40.00: 200 minutes, rounded to the penny.|133.33"_q, "Percentages together.|0"_q,
                  "Enhancement of 0 % of 133.33.|0"_q, "Claim.|133.33"_q}),
        steps("schedule", "1"));
}

TEST_F(Why, NamesTheRuleThatChoseTheRate)
{
    const auto rate = [this] { return steps("schedule", "1").value(1); };
    item->Counsel = true;
    EXPECT_EQ("Counsel rate of the group: Counsel is ticked.|30"_q, rate());
    item->Waiting = true;
    EXPECT_EQ("Travel and waiting rate of the group: Travel or Waiting is ticked.|20"_q, rate());
    item->UseHourlyRate = true;
    EXPECT_EQ("Hourly rate of the group: Use Hourly Rate is ticked.|40"_q, rate());
}

TEST_F(Why, LeadsToWhatAnItemComesFrom)
{
    const auto why = mdWhyScheduleItem(form, 1);
    ASSERT_TRUE(why);
    EXPECT_EQ("Schedule of Time"_q, why->source().Screen);
    EXPECT_EQ("schedule"_q, why->source().List);
    EXPECT_EQ(1, why->source().Item);
    EXPECT_EQ("Fee Earners / Rates"_q, why->steps().front().Source.Screen);
    EXPECT_EQ("groups"_q, why->steps().front().Source.List);
    EXPECT_EQ(1, why->steps().front().Source.Item);
}

TEST_F(Why, EndsAtTheStepThatFails)
{
    item->TTime = QString();
    EXPECT_EQ("!9"_q, mdWhyScheduleItem(form, 1)->figure());
    EXPECT_EQ(3, steps("schedule", "1").size());
    EXPECT_TRUE(steps("schedule", "1").back().contains("Schedule item 1 has no time"_q));
    item->TTime = "01:00"_q;
    item->IncludeInEnhancements = true;
    EXPECT_EQ("Enhancement: Schedule item 1 names no enhancement.|!91"_q, steps("schedule", "1").back());
    item->FeeEarnerUniqueID = "ID99"_q;
    EXPECT_EQ(QStringList {"Fee earner: Schedule item 1 names a fee earner that no longer exists.|!91"_q},
        steps("schedule", "1"));
    item->FeeEarnerUniqueID = feeEarner->UniqueID();
    group->HourlyRate = "much"_q;
    EXPECT_EQ(QStringList({"Fee earner MO: Partner.|group A"_q,
                  "Rate: Schedule item 1: the hourly rate of group A is not an amount.|!13"_q}),
        steps("schedule", "1"));
}

TEST_F(Why, OfAClaimInWhichNothingCanBeLookedUp)
{
    group->XMLNode().child("orderid").text().set("99999999999");
    EXPECT_EQ(
        QStringList {"Claim: Fee earner group A: Order ID holds \"99999999999\", which is too large a number.|!6"_q},
        steps("schedule", "1"));
}

TEST_F(Why, OfALineOfLettersAndCalls)
{
    // 3 at 5.00 is 15; 12.5 per cent of that is 1.875, 10 per cent 1.5; together 18.375.
    feeEarner->LettersOut = 3;
    group->EnhanceComms = true;
    group->EnhancementRate = "10"_q;
    const auto listed = claim.addEnhancement("12.5");
    listed->Name = "Speed"_q;
    form.Communications.EnhanceLettersOut = true;
    form.Communications.LettersOutEnhancementUniqueID = listed->UniqueID();
    EXPECT_EQ(QStringList({"Line 1 of the letters out: Partner.|group A"_q, "Number of letters out.|3"_q,
                  "Rate of group A for each of the letters out.|5"_q, "Number times rate, rounded to the penny.|15"_q,
                  "Speed, 12.5 %.|1.875"_q, "Enhancement of group A, 10 %.|1.5"_q, "Enhancement.|3.375"_q,
                  "Claim.|18.375"_q}),
        steps("communications", "2/1"));
    EXPECT_EQ(QStringList {"No group takes this line.|0"_q}, steps("communications", "2/2"));
    group->LettersOutRate = "5 each"_q;
    EXPECT_EQ("!13"_q, mdWhyCommunications(form, clsCommsKind::LettersOut, 1)->figure());
}

TEST_F(Why, OfAHearing)
{
    // 2 units at 90.59 are 181.18; 25 per cent of that is 45.295; together 226.475.
    claim.addFASItem(2, "90.59", "25");
    EXPECT_EQ(QStringList({"Hearing units at their rate, 2 at 90.59.|181.18"_q, "Bolt-on of 25 %.|45.295"_q,
                  "Court bundle payment.|0"_q, "Settlement fee.|0"_q, "Exceptional travel.|0"_q, "Total.|226.475"_q}),
        steps("fas", "1"));
    form.FASItem(1)->BoltOnClaimed = "0.00"_q;
    form.FASItem(1)->SettlementFee = QString();
    EXPECT_EQ(QStringList({"Hearing units at their rate, 2 at 90.59.|181.18"_q, "Court bundle payment.|0"_q,
                  "Settlement fee: FAS item 1: Settlement Fee is empty.|!13"_q}),
        steps("fas", "1"));
}

TEST_F(Why, OfTotals)
{
    // The item: 133.33. Two calls at 4.00: 8.00. VAT at 17.5 per cent of 141.33: 24.73275, at four decimals 24.7328.
    feeEarner->Calls = 2;
    EXPECT_EQ(QStringList({"Attendance and conferences.|133.33"_q, "Documents.|0"_q, "Hearings.|0"_q, "Travel.|0"_q,
                  "Waiting.|0"_q, "Schedule of time.|133.33"_q}),
        steps("total", "ScheduleTotal"));
    EXPECT_EQ(QStringList({"Schedule of time.|133.33"_q, "Letters and calls.|8"_q, "Profit costs.|141.33"_q}),
        steps("total", "ProfitCostsTotal"));
    EXPECT_EQ(steps("total", "ProfitCostsTotal"), steps("total", "npc"));
    EXPECT_EQ(
        QStringList({"Profit costs.|141.33"_q, "Rate of VAT, per cent.|17.50"_q, "VAT on profit costs.|24.7328"_q}),
        steps("total", "vpc"));
    item->Advocacy = true; // at 50.00: 166.67
    EXPECT_EQ(QStringList({"Profit costs.|174.67"_q, "Less: Advocacy.|166.67"_q, "Profit costs without advocacy.|8"_q}),
        steps("total", "LoadFromBillNet"));
    EXPECT_EQ(QStringList({"Item 1.|166.67"_q, "Advocacy.|166.67"_q}), steps("total", "AdvocacyTotal"));
}

TEST_F(Why, OfTotalsOverItems)
{
    claim.addDisbursement("10.00", "1.75")->Description = "Court fee"_q;
    claim.addDisbursement("20.50", "0");
    claim.addDisbursement("100.00", "17.50", true);
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ(QStringList({"Disbursement 1, Court fee.|10"_q, "Disbursement 2.|20.5"_q, "Other disbursements.|30.5"_q}),
        steps("total", "ndibs"));
    EXPECT_EQ(QStringList({"Disbursement 3.|17.5"_q, "VAT on counsel's fees.|17.5"_q}), steps("total", "vcf"));
    EXPECT_EQ(
        QStringList({"Counsel's fees.|100"_q, "VAT on counsel's fees.|17.5"_q, "Counsel's fees with VAT.|117.5"_q}),
        steps("list", "counsel"));
    form.Disbursement(1)->Amount = "ten"_q;
    EXPECT_EQ(
        QStringList {"Disbursement 1, Court fee: Disbursement 1: Amount holds \"ten\", which is not an amount.|!13"_q},
        steps("total", "ndibs"));
}

TEST_F(Why, OfTheVATOfHearingsLeavesAnEmptyOneEmpty)
{
    form.FormType = "Claim1A"_q;
    claim.addFASItem(1, "10.00", "0");
    ASSERT_EQ(QString(), form.FASItem(1)->VATForFAS());
    EXPECT_EQ(QStringList({"FAS item 1.|0"_q, "VAT on the Family Advocacy Scheme.|0"_q}), steps("total", "vfas"));
    EXPECT_EQ(4, steps("total", "vtotal").size());
    EXPECT_EQ(QString(), form.FASItem(1)->VATForFAS());
}

TEST_F(Why, OfTheColumnsOfAList)
{
    EXPECT_EQ(QStringList({"Items of the schedule.|1"_q, "Items on the bill.|1"_q}), steps("list", "items"));
    EXPECT_EQ(nothing, steps("list", "fas"));
    form.FormType = "Claim1A"_q;
    form.ExcludeNonAdvocacy = true;
    claim.addFASItem(2, "90.59", "25"); // 226.475, printed as 226.48
    EXPECT_EQ(QStringList({"Items of the schedule.|1"_q, "Items on the bill.|0"_q}), steps("list", "items"));
    EXPECT_EQ(QStringList({"FAS item 1.|226.475"_q, "Family Advocacy Scheme.|226.48"_q}), steps("list", "fas"));
    for (const char *column : {"path", "client", "errors", "ntotal", ""})
        EXPECT_EQ(nothing, steps("list", column)) << column;
}

TEST_F(Why, KnowsNothingOfFiguresThatThereAreNot)
{
    for (const auto &[kind, which] :
        {std::pair("schedule", "2"), std::pair("schedule", "0"), std::pair("schedule", "x"),
            std::pair("schedule", "+1"), std::pair("schedule", ""), std::pair("communications", "3/1"),
            std::pair("communications", "0/3"), std::pair("communications", "0/0"), std::pair("communications", "0"),
            std::pair("communications", "-1/1"), std::pair("fas", "1"), std::pair("total", "nsubtotal"),
            std::pair("total", "FormType"), std::pair("total", ""), std::pair("bill", "1"), std::pair("", "")})
        EXPECT_EQ(nothing, steps(kind, which)) << kind << ' ' << which;
}

TEST_F(Why, EndsInTheErrorsOfTheTotals)
{
    for (const char *formType : {"Claim1", "Claim1A"}) {
        form.FormType = QString::fromLatin1(formType);
        feeEarner->LettersIn = 1;
        group->LettersInRate = "2 each"_q; // 13
        claim.addItem(feeEarner, "")->Advocacy = true; // 9
        claim.addDisbursement("99999999999999999", "x"); // 6 and 13
        claim.addDisbursement("x", "1", true);
        claim.addFASItem(1, "x", "0")->VATForFAS = "999999999999999999"_q; // 13 and 6
        form.SeparateCounselAndNonCounselDisbursements();
        const QJsonObject totals = QJsonDocument::fromJson(mdTotalsReport(form).json).object();
        for (const clsBillFigure &total : mdTotalFigures())
            EXPECT_EQ(totals[QString::fromLatin1(total.key)].toString(),
                mdWhyTotal(form, QString::fromLatin1(total.key))->figure())
                << total.key;
        const QJsonObject summary = totals["Summary"_q].toObject();
        for (const QString &key : summary.keys())
            EXPECT_EQ(summary[key].toString(), mdWhyTotal(form, key)->figure()) << key.toStdString();
    }
}

// Each figure of the totals equals the last step of its explanation.
TEST_F(Why, EndsInTheFiguresOfTheTotals)
{
    for (const QString &name : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files, QDir::Name)) {
        SCOPED_TRACE(name.toStdString());
        clsZR3Form sample;
        ASSERT_TRUE(sample.LoadXML(mdSamplePath(name)));
        const clsBill bill(sample);
        const QJsonObject totals = QJsonDocument::fromJson(mdTotalsReport(sample).json).object();
        const auto figure = [&](const char *kind, const QString &which) {
            const auto why = mdWhy(bill, QString::fromLatin1(kind), which);
            return why ? why->figure() : "nothing"_q;
        };
        for (const auto &item_ : totals["ScheduleItems"_q].toArray())
            EXPECT_EQ(item_.toObject()["Claim"_q].toString(),
                figure("schedule", QString::number(item_.toObject()["OrderID"_q].toInt())));
        for (const auto &line : totals["Communications"_q].toArray())
            EXPECT_EQ(line.toObject()["Claim"_q].toString(),
                figure("communications",
                    "%1/%2"_q.arg(line.toObject()["Kind"_q].toInt()).arg(line.toObject()["Line"_q].toInt())));
        for (const auto &hearing : totals["FASItems"_q].toArray())
            EXPECT_EQ(hearing.toObject()["Total"_q].toString(),
                figure("fas", QString::number(hearing.toObject()["OrderID"_q].toInt())));
        for (const clsBillFigure &total : mdTotalFigures())
            EXPECT_EQ(
                totals[QString::fromLatin1(total.key)].toString(), figure("total", QString::fromLatin1(total.key)))
                << total.key;
        const QJsonObject summary = totals["Summary"_q].toObject();
        for (const QString &key : summary.keys())
            EXPECT_EQ(summary[key].toString(), figure("total", key)) << key.toStdString();
        for (const clsBillFigure &column : mdListFigures(sample))
            EXPECT_EQ(MoneyToText(column.figure(bill)), figure("list", QString::fromLatin1(column.key))) << column.key;
    }
}
