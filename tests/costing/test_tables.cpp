// A claim's lists as tables.

#include "costing/tables/mdClaimTable.h"
#include "costing/tables/mdCsv.h"
#include "costing/tables/mdTableColumns.h"
#include "tests/formdata/clsClaimTest.h"

namespace {

class Tables : public clsClaimTest {
protected:
    void SetUp() override
    {
        group = claim.addGroup("60.00");
        group->Reference = "A"_q;
        feeEarner = claim.addFeeEarner(group, "AB");
    }

    clsClaimTable table(const char *name) const
    {
        const QString before = form.XMLOutput();
        const auto result = mdClaimTable(form, QString::fromLatin1(name));
        EXPECT_EQ(before, form.XMLOutput());
        EXPECT_TRUE(result) << name;
        return result.value_or(clsClaimTable());
    }
    /// A row as one text, separated by bars.
    QString row(const char *name, size_t place = 0) const
    {
        const clsClaimTable all = table(name);
        return place < all.rows.size() ? all.rows[place].join(u'|') : "no such row"_q;
    }
    QString header(const char *name) const { return table(name).header.join(u','); }

    clsTestClaim::Group group;
    clsTestClaim::FeeEarner feeEarner;
};

QByteArray csvOf(const QString &cell)
{
    return mdTableAsCsv({{"a"_q, "b"_q}, {{cell, "x"_q}}}).mid(5);
}

} // namespace

TEST_F(Tables, TheScheduleHasItsOwnColumns)
{
    EXPECT_EQ("orderid,feeearner,date,code,description,time,advocacy,counsel,travel,waiting,usehourlyrate,"
              "includeinenhancements,enhancement,rate,claim"_q,
        header("schedule"));
    EXPECT_TRUE(table("schedule").rows.empty());
    const auto enhancement = claim.addEnhancement("10");
    enhancement->Name = "Speed"_q;
    const auto item = claim.addItem(feeEarner, "01:20", "DPL");
    item->dDate = "03/06/25"_q;
    item->Description = "Drafting"_q;
    item->Advocacy = true;
    item->UseHourlyRate = true;
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = enhancement->UniqueID();
    // 1 1/3 hours at 60.00 are 80.00, and 10 per cent more 88.00.
    EXPECT_EQ("1|AB|03/06/2025|DPL|Drafting|01:20|yes|no|no|no|yes|yes|Speed|60.00|88.00"_q, row("schedule"));
    EXPECT_FALSE(table("schedule").hasFailures);
}

TEST_F(Tables, HaveAllThatAnItemHas)
{
    const auto check = [](std::span<const clsTableColumn> columns, const clsXMLRecord &item) {
        for (const clsXMLPropertyPlace &place : item.properties()) {
            const QString name = QString::fromLatin1(place.property->name);
            const bool isNeverUsed = name == "TypeOfCase"_q;
            EXPECT_EQ(!isNeverUsed, mdColumnOf(columns, name) >= 0) << name.toStdString();
        }
        for (const clsTableColumn &column : columns)
            EXPECT_TRUE(item.field(QString::fromLatin1(column.property))) << column.name;
    };
    check(mdScheduleColumns(), *claim.addItem(feeEarner, "01:00"));
    check(mdDisbursementColumns(), *claim.addDisbursement("1.00", "0.00"));
    check(mdExpertColumns(), *form.AddExpertInvoice());
}

TEST_F(Tables, ItemsStandInTheirOrder)
{
    claim.addItem(feeEarner, "01:00")->Description = "second"_q;
    claim.addItem(feeEarner, "02:00")->Description = "first"_q;
    form.ScheduleOfTimeItem(1)->OrderID = 2;
    form.ScheduleOfTimeItem(2)->OrderID = 1;
    EXPECT_TRUE(row("schedule", 0).startsWith("1|AB||ACT|first|02:00|"_q)) << row("schedule", 0).toStdString();
    EXPECT_TRUE(row("schedule", 1).startsWith("2|AB||ACT|second|01:00|"_q));
}

TEST_F(Tables, DatesAreShownWhole)
{
    const auto item = claim.addItem(feeEarner, "01:00");
    const std::pair<const char *, const char *> rows[] = {
        {"03/06/25", "03/06/2025"},
        {"03/06/30", "03/06/1930"},
        {"31/12/29", ""},
        {"", ""},
        {"3.6.2025", "03/06/2025"},
        {"3/6", "3/6"},
        {"soon", "soon"},
    };
    for (const auto &[stored, shown] : rows) {
        item->dDate = QString::fromLatin1(stored);
        EXPECT_EQ(QString::fromLatin1(shown), table("schedule").rows.front()[2]) << stored;
    }
}

TEST_F(Tables, FiguresThatFailStandAsTheirErrors)
{
    claim.addItem(feeEarner, "01:00");
    claim.addItem(feeEarner, "soon");
    group->HourlyRate = "dear"_q;
    const clsClaimTable all = table("schedule");
    EXPECT_TRUE(all.hasFailures);
    EXPECT_EQ(QStringList({"!13"_q, "!13"_q}), all.rows[0].mid(13));
    EXPECT_EQ("!13"_q, all.rows[1].mid(13).front());
    EXPECT_FALSE(all.causes.isEmpty());
    group->HourlyRate = "60.00"_q;
    EXPECT_EQ(QStringList({"60.00"_q, "!9"_q}), table("schedule").rows[1].mid(13));
    // A missing fee earner is shown by the stored identity.
    form.ScheduleOfTimeItem(1)->FeeEarnerUniqueID = "ID99"_q;
    EXPECT_EQ("1|ID99||ACT||01:00|no|no|no|no|no|no||!91|!91"_q, row("schedule"));
}

TEST_F(Tables, BrokenElementsAreFailuresToo)
{
    claim.addItem(feeEarner, "01:00");
    form.XMLScheduleOfTimeItemsNode().first_child().child("travel").text().set("Perhaps");
    EXPECT_EQ("!13"_q, table("schedule").rows[0][8]);
    EXPECT_TRUE(table("schedule").hasFailures);
    form.XMLScheduleOfTimeItemsNode().first_child().remove_child("travel");
    EXPECT_EQ("!91"_q, table("schedule").rows[0][8]);
}

TEST_F(Tables, OtherListsHaveTheirProperties)
{
    EXPECT_EQ("orderid,counsel,counseluniqueid,dateofwork,description,amount,vat"_q, header("disbursements"));
    EXPECT_EQ("orderid,experttype,partyname,solicitor,certificatereference,percentapportioned"_q, header("joint"));
    EXPECT_EQ("orderid,uniqueid,reference,groupuniqueid,calls,lettersin,lettersout"_q, header("feeearners"));
    EXPECT_EQ("orderid,uniqueid,name,accountnumber,vat"_q, header("counsel"));
    EXPECT_EQ("orderid,uniqueid,name,rate"_q, header("enhancements"));
    const auto counsel = form.AddCounsel();
    counsel->Name = "Ms Day"_q;
    counsel->VAT = true;
    const auto fee = claim.addDisbursement("1250.5", "250.1", true);
    fee->CounselUniqueID = counsel->UniqueID();
    fee->DateOfWork = "03/06/25"_q;
    fee->Description = "Brief"_q;
    EXPECT_EQ("1|yes|Ms Day|03/06/2025|Brief|1250.50|250.10"_q, row("disbursements"));
    EXPECT_EQ("1|"_q + counsel->UniqueID() + "|Ms Day||yes"_q, row("counsel"));
    feeEarner->Calls = 7;
    EXPECT_EQ("1|"_q + feeEarner->UniqueID() + "|AB|A|7|0|0"_q, row("feeearners"));
    EXPECT_TRUE(row("groups").startsWith("1|"_q + group->UniqueID() + "|A||no|0.00|no|60.00|4.00|2.00|5.00|"_q))
        << row("groups").toStdString();
    const auto expert = form.AddExpertInvoice();
    expert->ExpertType = "Surveyor"_q;
    expert->NetAmount = "100"_q;
    expert->OtherCosts = ""_q;
    EXPECT_EQ("1||Surveyor|no|0.00|0.00|0.00|0.00|0.00||100.00|0.00"_q, row("experts"));
    claim.addFASItem(2, "10.005", "0")->dDate = "03/06/25"_q;
    EXPECT_TRUE(row("fas").startsWith("1|03/06/2025|"_q));
    // Half a penny is rounded away from zero; the VAT of a hearing may be missing.
    EXPECT_TRUE(row("fas").contains("|10.01|"_q)) << row("fas").toStdString();
    EXPECT_TRUE(row("fas").endsWith(u'|')) << row("fas").toStdString();
    EXPECT_FALSE(table("fas").hasFailures);
}

TEST_F(Tables, AnAmountThatIsNoneFails)
{
    claim.addDisbursement("ten", "0.00");
    claim.addDisbursement("10.00", "");
    EXPECT_EQ("1|no||||!13|0.00"_q, row("disbursements", 0));
    EXPECT_EQ("2|no||||10.00|!13"_q, row("disbursements", 1));
    EXPECT_TRUE(table("disbursements").hasFailures);
    EXPECT_EQ(1, table("disbursements").causes.filter("Disbursement 1"_q).size());
}

TEST_F(Tables, LettersAndCallsAreSixLines)
{
    feeEarner->Calls = 3;
    feeEarner->LettersOut = 2;
    EXPECT_EQ("kind,line,rate,count,basic,enhancement,claim"_q, header("communications"));
    EXPECT_EQ(6u, table("communications").rows.size());
    EXPECT_EQ("0|1|4.00|3|12.00|0.00|12.00"_q, row("communications", 0));
    EXPECT_EQ("0|2|0.00||0.00|0.00|0.00"_q, row("communications", 1));
    EXPECT_EQ("2|1|5.00|2|10.00|0.00|10.00"_q, row("communications", 4));
    group->CallsRate = "4x"_q; // above zero, but not an amount
    EXPECT_EQ("0|1|!13|3|!13|0.00|!13"_q, row("communications", 0));
    EXPECT_TRUE(table("communications").hasFailures);
    EXPECT_EQ("2|1|5.00|2|10.00|0.00|10.00"_q, row("communications", 4));
}

TEST_F(Tables, TheTotalsOfTheForm)
{
    claim.addItem(feeEarner, "00:50");
    form.AddFASItem()->VATForFAS = ""_q; // computing its total would write a zero to it
    const clsClaimTable all = table("totals");
    EXPECT_EQ("key,value"_q, all.header.join(u','));
    EXPECT_EQ("ScheduleTotal,50.00"_q, all.rows.front().join(u','));
    EXPECT_EQ("cftotal,0.00"_q, all.rows.back().join(u','));
    form.FormType = "Claim1A"_q;
    EXPECT_EQ("vtotal"_q, table("totals").rows.back().front());
}

TEST_F(Tables, ThereIsNoOtherList)
{
    for (const char *name : {"", "Schedule", "schedule ", "list", "items"})
        EXPECT_FALSE(mdClaimTable(form, QString::fromLatin1(name))) << name;
}

TEST(Csv, QuotesOnlyWhereTheyAreNeeded)
{
    EXPECT_EQ("a,b\r\n", mdTableAsCsv({{"a"_q, "b"_q}, {}}));
    EXPECT_EQ("plain text; 'so',x\r\n", csvOf("plain text; 'so'"_q));
    EXPECT_EQ("\"one, two\",x\r\n", csvOf("one, two"_q));
    EXPECT_EQ("\"say \"\"so\"\"\",x\r\n", csvOf("say \"so\""_q));
    EXPECT_EQ("\"1\r\n2\",x\r\n", csvOf("1\r\n2"_q));
    EXPECT_EQ("\"1\n2\",x\r\n", csvOf("1\n2"_q));
    EXPECT_EQ("\xC2\xA3,x\r\n", csvOf("£"_q));
}

TEST(Csv, FormulasAreTexts)
{
    for (const char *formula : {"=1+1", "+44 20", "-a", "@now", "-", "'=1", "''+a", "'-5"})
        EXPECT_EQ('\'' + QByteArray(formula) + ",x\r\n", csvOf(QString::fromLatin1(formula)));
    for (const char *text : {"-5", "-5.25", "+1,000", "'a", "a=1", "", "'", " =1"}) {
        const QString cell = QString::fromLatin1(text);
        EXPECT_EQ(cell, mdWithFormulaGuard(cell));
    }
    for (const char *text : {"=1+1", "-a", "-5", "'=1", "''=1", "'a", "a", "", "'", "''"}) {
        const QString cell = QString::fromLatin1(text);
        EXPECT_EQ(cell, mdWithoutFormulaGuard(mdWithFormulaGuard(cell))) << text;
    }
    EXPECT_EQ("=1"_q, mdWithoutFormulaGuard("'=1"_q));
    EXPECT_EQ("'a"_q, mdWithoutFormulaGuard("'a"_q));
}
