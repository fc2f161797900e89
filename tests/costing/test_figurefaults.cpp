// The reason why a figure can't be computed: the property, and the sentence for the user.

#include "costing/mdCheckForBlankItems.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetBillSummary.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"
#include "tests/formdata/clsClaimTest.h"

namespace {

using Kind = clsCommsKind;

class FigureFaults : public clsClaimTest {
protected:
    void SetUp() override
    {
        group = claim.addGroup();
        group->Reference = "A"_q;
        feeEarner = claim.addFeeEarner(group, "OQ");
        item = claim.addItem(feeEarner, "01:00");
    }

    /// The faults of a record, each as its property, a bar and the sentence.
    template <class... Of> QStringList wrong(const Of &...of) const
    {
        QStringList result;
        for (const clsFigureFault &fault : mdFigureFaults(form, of...)) {
            EXPECT_TRUE(fault.sentence.endsWith(fault.words)) << fault.sentence.toStdString();
            result << fault.property + u'|' + fault.sentence;
        }
        return result;
    }
    /// The cause of the error that a total throws.
    template <class Compute> static QString causeOf(Compute compute)
    {
        try {
            compute();
        } catch (const clsRunTimeError &error) {
            return error.cause();
        }
        return "no error"_q;
    }
    static void setText(const clsXMLRecord &record, const char *element, const char *text)
    {
        record.XMLNode().child(element).text().set(text);
    }

    clsTestClaim::Group group;
    clsTestClaim::FeeEarner feeEarner;
    clsTestClaim::Item item;
};

QStringList one(const char *fault)
{
    return {QString::fromUtf8(fault)};
}

} // namespace

TEST_F(FigureFaults, AnItemThatCanBePricedHasNone)
{
    EXPECT_EQ(QStringList(), wrong(*item));
    group->AdvocacyRate = QString(); // not advocacy
    group->EnhancementRate = QString(); // not enhanced
    item->EnhancementUniqueID = "ID99"_q;
    EXPECT_EQ(QStringList(), wrong(*item));
}

TEST_F(FigureFaults, OfAFeeEarnerOrAGroupThatIsGone)
{
    item->FeeEarnerUniqueID = "ID99"_q;
    EXPECT_EQ(one("FeeEarnerUniqueID|Schedule item 1 names a fee earner that no longer exists"), wrong(*item));
    item->FeeEarnerUniqueID = QString();
    EXPECT_EQ(one("FeeEarnerUniqueID|Schedule item 1 names no fee earner"), wrong(*item));
    item->FeeEarnerUniqueID = feeEarner->UniqueID();
    feeEarner->GroupUniqueID = "ID99"_q;
    EXPECT_EQ(
        one("FeeEarnerUniqueID|Schedule item 1 names the fee earner OQ, whose group no longer exists"), wrong(*item));
    EXPECT_EQ(one("GroupUniqueID|Fee earner OQ names a group that no longer exists"), wrong(*feeEarner));
    feeEarner->GroupUniqueID = QString();
    EXPECT_EQ(one("FeeEarnerUniqueID|Schedule item 1 names the fee earner OQ, who has no group"), wrong(*item));
    EXPECT_EQ(one("GroupUniqueID|Fee earner OQ has no group"), wrong(*feeEarner));
}

TEST_F(FigureFaults, OfATime)
{
    item->TTime = QString();
    EXPECT_EQ(one("TTime|Schedule item 1 has no time"), wrong(*item));
    item->TTime = "90"_q;
    EXPECT_EQ(one("TTime|Schedule item 1 has the time \"90\", which is not one"), wrong(*item));
    item->TTime = "999999999:00"_q;
    EXPECT_EQ(one("TTime|Schedule item 1 has a time that is too long"), wrong(*item));
    item->TTime = QString(50, u'9');
    EXPECT_TRUE(wrong(*item).first().endsWith("too long"_q));
    item->TTime = QString(50, u'x');
    EXPECT_EQ("TTime|Schedule item 1 has the time \""_q + QString(40, u'x') + u'\u2026' + "\", which is not one"_q,
        wrong(*item).first());
}

TEST_F(FigureFaults, OfAnEnhancement)
{
    item->IncludeInEnhancements = true;
    EXPECT_EQ(one("EnhancementUniqueID|Schedule item 1 names no enhancement"), wrong(*item));
    item->EnhancementUniqueID = "ID99"_q;
    EXPECT_EQ(one("EnhancementUniqueID|Schedule item 1 names an enhancement that no longer exists"), wrong(*item));
    const auto enhancement = claim.addEnhancement("");
    enhancement->Name = "Care"_q;
    item->EnhancementUniqueID = enhancement->UniqueID();
    EXPECT_EQ(one("|Schedule item 1: the rate of enhancement Care is not an amount"), wrong(*item));
    EXPECT_EQ(one("Rate|Enhancement Care: Rate is empty"), wrong(*enhancement));
}

TEST_F(FigureFaults, OfTheRatesThatTheItemTakes)
{
    group->HourlyRate = QString();
    EXPECT_EQ(one("|Schedule item 1: the hourly rate of group A is not an amount"), wrong(*item));
    EXPECT_EQ(one("HourlyRate|Fee earner group A: Hourly Rate is empty"), wrong(*group));
    group->HourlyRate = "99999999999999999999"_q;
    EXPECT_EQ(one("|Schedule item 1: the hourly rate of group A is larger than an amount can be"), wrong(*item));
    EXPECT_EQ(one("HourlyRate|Fee earner group A: Hourly Rate is larger than an amount can be"), wrong(*group));
    group->HourlyRate = "40.00"_q;
    group->AdvocacyRate = "much"_q;
    group->TravelAndWaitingRate = "more"_q;
    group->EnhancementRate = "most"_q;
    group->Enhance = true;
    EXPECT_EQ(one("|Schedule item 1: the enhancement rate of group A is not an amount"), wrong(*item));
    item->Advocacy = true;
    item->Waiting = true;
    EXPECT_EQ(QStringList({"|Schedule item 1: the advocacy rate of group A is not an amount"_q,
                  "|Schedule item 1: the travel and waiting rate of group A is not an amount"_q,
                  "|Schedule item 1: the enhancement rate of group A is not an amount"_q}),
        wrong(*item));
    EXPECT_EQ(
        "AdvocacyRate|Fee earner group A: Advocacy Rate holds \"much\", which is not an amount"_q, wrong(*group).at(1));
    // A group without a reference is named by its position.
    group->Reference = QString();
    EXPECT_EQ("|Schedule item 1: the advocacy rate of group 1 is not an amount"_q, wrong(*item).first());
}

TEST_F(FigureFaults, OfTicksAndOfWhatComesToTooMuch)
{
    group->HourlyRate = "900000000000000"_q;
    item->TTime = "2000:00"_q;
    EXPECT_EQ(one("|Schedule item 1 comes to more than an amount can be"), wrong(*item));
    setText(*item, "travel", "perhaps");
    EXPECT_EQ(
        one("|Schedule item 1: the tick Travel holds \"perhaps\", which is neither True nor False"), wrong(*item));
    setText(*item, "travel", "False");
    item->TTime = "01:00"_q;
    form.FormType = "Claim1A"_q;
    setText(form, "excludenonadvocacy", "perhaps");
    EXPECT_EQ(one("|The claim: the tick Exclude Non Advocacy holds \"perhaps\", which is neither True nor False"),
        wrong(*item));
}

TEST_F(FigureFaults, StandInTheOrderInWhichTheyAreMended)
{
    item->FeeEarnerUniqueID = "ID99"_q;
    item->TTime = QString();
    item->IncludeInEnhancements = true;
    QStringList properties;
    for (const clsFigureFault &fault : mdFigureFaults(form, *item))
        properties << fault.property;
    EXPECT_EQ(QStringList({"FeeEarnerUniqueID"_q, "TTime"_q, "EnhancementUniqueID"_q}), properties);
    // The error determines which of them is reported.
    EXPECT_EQ("Schedule item 1 has no time"_q, causeOf([&] { ColumnTimeTotal(form, 0); }));
    EXPECT_EQ(
        "Schedule item 1 names a fee earner that no longer exists"_q, causeOf([&] { ColumnClaimTotal(form, 0); }));
}

TEST_F(FigureFaults, OfDisbursements)
{
    const auto disbursement = claim.addDisbursement("12.00", "2.40");
    EXPECT_EQ(QStringList(), wrong(*disbursement));
    disbursement->Amount = "abc"_q;
    disbursement->VAT = " "_q;
    EXPECT_EQ(QStringList({"Amount|Disbursement 1: Amount holds \"abc\", which is not an amount"_q,
                  "VAT|Disbursement 1: VAT is empty"_q}),
        wrong(*disbursement));
    disbursement->Amount = "1"_q;
    disbursement->VAT = "1"_q;
    disbursement->Counsel = true;
    EXPECT_EQ(one("CounselUniqueID|Disbursement 1 is counsel's fee and names no counsel"), wrong(*disbursement));
    disbursement->CounselUniqueID = "ID99"_q;
    EXPECT_EQ(one("CounselUniqueID|Disbursement 1 names a counsel who no longer exists"), wrong(*disbursement));
    disbursement->CounselUniqueID = form.AddCounsel()->UniqueID();
    EXPECT_EQ(QStringList(), wrong(*disbursement));
    setText(*disbursement, "counsel", "perhaps");
    EXPECT_EQ(one("Counsel|Disbursement 1: the tick Counsel holds \"perhaps\", which is neither True nor False"),
        wrong(*disbursement));
}

TEST_F(FigureFaults, OfExpertsAndTheAdvocacyScheme)
{
    const auto invoice = form.AddExpertInvoice();
    EXPECT_EQ(QStringList(), wrong(*invoice));
    invoice->NetAmount = QString();
    invoice->VATAmount = "x"_q;
    EXPECT_EQ(QStringList({"NetAmount|Expert invoice 1: Net Amount is empty"_q,
                  "VATAmount|Expert invoice 1: VAT Amount holds \"x\", which is not an amount"_q}),
        wrong(*invoice));

    const auto hearing = claim.addFASItem(1, "100.00", "0");
    EXPECT_EQ(QStringList(), wrong(*hearing)) << "an empty VAT is none";
    hearing->SettlementFee = QString();
    hearing->VATForFAS = "x"_q;
    EXPECT_EQ(QStringList({"SettlementFee|FAS item 1: Settlement Fee is empty"_q,
                  "VATForFAS|FAS item 1: VAT For FAS holds \"x\", which is not an amount"_q}),
        wrong(*hearing));
    hearing->SettlementFee = "0"_q;
    hearing->VATForFAS = "0"_q;
    setText(*hearing, "hearingunits", "99999999999");
    EXPECT_EQ(one("HearingUnits|FAS item 1: Hearing Units holds \"99999999999\", which is too large a number"),
        wrong(*hearing));
}

TEST_F(FigureFaults, OfLettersAndCalls)
{
    EXPECT_EQ(QStringList(), wrong(1, Kind::Calls));
    feeEarner->Calls = 3;
    EXPECT_EQ(QStringList(), wrong(1, Kind::Calls));
    group->CallsRate = "4.05x"_q; // enough for a line, but not for a price
    EXPECT_EQ(one("Calls|Communications, line 1 of the calls: the calls rate of group A is not an amount"),
        wrong(1, Kind::Calls));
    EXPECT_EQ(QStringList(), wrong(2, Kind::Calls));
    EXPECT_EQ("Communications, line 1 of the calls: the calls rate of group A is not an amount"_q,
        causeOf([&] { CommsTotal(form); }));
    group->CallsRate = "4.00"_q;
    feeEarner->Calls = 2'000'000'000;
    claim.addFeeEarner(group)->Calls = 2'000'000'000;
    EXPECT_EQ(one("Calls|Fee earner group A: the counts of its fee earners add up to too large a number"),
        wrong(1, Kind::Calls));
}

TEST_F(FigureFaults, ATotalNamesTheItemThatItFailsAt)
{
    claim.addDisbursement("1", "1");
    claim.addDisbursement("x", "x");
    claim.addDisbursement("", "1", true);
    form.SeparateCounselAndNonCounselDisbursements();
    form.AddExpertInvoice()->VATAmount = "x"_q;
    claim.addFASItem(1, "", "0")->VATForFAS = "x"_q;
    claim.addItem(feeEarner, "")->Advocacy = true;
    const std::pair<QString, QString> rows[] = {
        {"Disbursement 2: Amount holds \"x\", which is not an amount"_q,
            causeOf([&] { NonCounselDisbursementsAmountTotal(form); })},
        {"Disbursement 3: Amount is empty"_q, causeOf([&] { CounselDisbursementsAmountTotal(form); })},
        {"Disbursement 3: Amount is empty"_q, causeOf([&] { CounselFeesTotal(form); })},
        {"Expert invoice 1: VAT Amount holds \"x\", which is not an amount"_q,
            causeOf([&] { ExpertInvoicesVATTotal(form); })},
        {"FAS item 1: Rate For Units is empty"_q, causeOf([&] { FASItemsTotal(form); })},
        {"Schedule item 2 has no time"_q, causeOf([&] { ScheduleTotal(form); })},
        {"Schedule item 2 has no time"_q, causeOf([&] { ProfitCostsTotal(form); })},
        {"Schedule item 2 has no time"_q, causeOf([&] { AdvocacyTotal(form); })},
        {"Schedule item 2 has no time"_q, causeOf([&] { mdCountBlankScheduleItems(form); })},
    };
    for (const auto &[expected, told] : rows)
        EXPECT_EQ(expected, told);
    form.ActualCostsIncurred.FixedFee = "x"_q;
    EXPECT_EQ("Actual Costs: Fixed Fee holds \"x\", which is not an amount"_q, causeOf([&] { FixedFee(form); }));
    EXPECT_EQ(1u, mdFixedFeeFaults(form).size());
    form.VATRate = QString(300, u'9');
    EXPECT_TRUE(
        causeOf([&] { VATOf(form, Money::fromTenThousandths(10'000)); }).startsWith("Form Setup: the VAT rate"_q));
}
