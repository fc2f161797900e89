// A figure that can't be computed is found once, with the property to correct.

#include "tests/costing/clsCheckTest.h"

namespace {

class CheckFigures : public clsCheckTest {
protected:
    QStringList figures() const { return found("figure"); }
};

} // namespace

TEST_F(CheckFigures, OfAnItemNameTheFirstFault)
{
    item->FeeEarnerUniqueID = "ID99"_q;
    item->TTime = "soon"_q;
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|FeeEarnerUniqueID"_q}, figures());
    EXPECT_EQ(QStringList {"Schedule item 1 names a fee earner that no longer exists; choose a fee earner who has a "
                           "group."_q},
        said("figure"));
    item->FeeEarnerUniqueID = feeEarner->UniqueID();
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|TTime"_q}, figures());
    item->TTime = "01:00"_q;
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = "ID99"_q;
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|EnhancementUniqueID"_q}, figures());
    item->IncludeInEnhancements = false;
    group->HourlyRate = "much"_q;
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|"_q}, figures());
    EXPECT_EQ(QStringList {"Schedule item 1: the hourly rate of group A is not an amount; put it right there."_q},
        said("figure"));
    group->HourlyRate = "40.00"_q;
    EXPECT_EQ(QStringList(), figures());
}

TEST_F(CheckFigures, OfAFeeEarnerWithoutItsGroup)
{
    feeEarner->GroupUniqueID = "ID99"_q;
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|FeeEarnerUniqueID"_q}, figures());
}

TEST_F(CheckFigures, OfAnItemOfWhichNobodyKnowsWhetherItIsBilled)
{
    beClaim1A();
    form.ExcludeNonAdvocacy = true;
    setContent(*item, "advocacy", "Perhaps");
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|"_q}, figures());
}

TEST_F(CheckFigures, OfItemsThatAreNotBilledToo)
{
    beClaim1A();
    form.ExcludeNonAdvocacy = true;
    item->TTime = QString();
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|TTime"_q}, figures());
}

TEST_F(CheckFigures, OfDisbursements)
{
    const auto spent = addSpent("ten", "two");
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|Amount"_q}, figures());
    spent->Amount = "10.00"_q;
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|VAT"_q}, figures());
    spent->VAT = QString(); // an empty one isn't an amount either
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|VAT"_q}, figures());
    spent->VAT = "1,000.00 "_q;
    EXPECT_EQ(QStringList(), figures());
}

TEST_F(CheckFigures, OfCounselsFeesOnThePageOfCounsel)
{
    const auto fee = addFee();
    EXPECT_EQ(QStringList(), figures());
    fee->CounselUniqueID = "ID99"_q;
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|CounselUniqueID"_q}, figures());
    form.IncludePage4 = false;
    EXPECT_EQ(QStringList(), figures());
    beClaim1A(); // page 5 on that form
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|CounselUniqueID"_q}, figures());
    form.IncludePage5 = false;
    EXPECT_EQ(QStringList(), figures());
    fee->Amount = "ten"_q; // amounts are checked whatever the page
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|Amount"_q}, figures());
}

TEST_F(CheckFigures, OfExpertsInvoices)
{
    const auto invoice = addInvoice();
    invoice->NetAmount = "x"_q;
    invoice->VATAmount = "x"_q;
    EXPECT_EQ(QStringList {"error|Disbursements|experts|1|NetAmount"_q}, figures());
    invoice->NetAmount = "100.00"_q;
    EXPECT_EQ(QStringList {"error|Disbursements|experts|1|VATAmount"_q}, figures());
    invoice->VATAmount = "0"_q;
    EXPECT_EQ(QStringList(), figures());
}

TEST_F(CheckFigures, OfLettersAndCallsByKindAndLine)
{
    feeEarner->LettersIn = 3;
    feeEarner->Calls = 2;
    EXPECT_EQ(QStringList(), figures());
    group->LettersInRate = "2.00 each"_q;
    EXPECT_EQ(QStringList {"error|Communications|communications|0|LettersIn"_q}, figures());
    group->CallsRate = "4.00 each"_q;
    EXPECT_EQ(QStringList({"error|Communications|communications|0|Calls"_q,
                  "error|Communications|communications|0|LettersIn"_q}),
        figures());
    // Three groups; the second's calls are on line 2.
    group->CallsRate = "4.00"_q;
    group->LettersInRate = "2.00"_q;
    const auto another = addEarner("B");
    another->Calls = 1;
    another->Group()->CallsRate = "4.00 each"_q;
    EXPECT_EQ(QStringList {"error|Communications|communications|0|Calls"_q}, figures());
    EXPECT_TRUE(said("figure").front().startsWith("Communications, line 2 of the calls"_q));
}

TEST_F(CheckFigures, OfHearingsOnClaim1AAlone)
{
    const auto hearing = addHearing();
    hearing->RateForUnits = QString();
    EXPECT_EQ(QStringList(), figures());
    beClaim1A();
    EXPECT_EQ(QStringList {"error|Family Advocacy Scheme|fas|1|RateForUnits"_q}, figures());
    hearing->RateForUnits = "10.00"_q;
    hearing->VATForFAS = "x"_q;
    EXPECT_EQ(QStringList {"error|Family Advocacy Scheme|fas|1|VATForFAS"_q}, figures());
    hearing->VATForFAS = QString();
    EXPECT_EQ(QStringList(), figures());
}

TEST_F(CheckFigures, OfTheOutcomeOnItsPage)
{
    form.OutcomeOfCase.PublicBenefitsAchieved = 2; // the last entry
    EXPECT_EQ(QStringList(), figures());
    form.OutcomeOfCase.PublicBenefitsAchieved = 3;
    form.OutcomeOfCase.Result = -1;
    EXPECT_EQ(QStringList({"error|Outcome of Case||0|Result"_q, "error|Outcome of Case||0|PublicBenefitsAchieved"_q}),
        figures());
    EXPECT_EQ("Outcome of Case: Result has no entry -1; choose one."_q, said("figure").front());
    setContent(form.OutcomeOfCase, "publicbenefitsachieved", "99999999999");
    EXPECT_EQ(2, figures().size());
    form.IncludePage2 = false;
    EXPECT_EQ(QStringList(), figures());
}

TEST_F(CheckFigures, OfTheFixedFeeOnItsPage)
{
    form.ActualCostsIncurred.FixedFee = "much"_q;
    EXPECT_EQ(QStringList(), figures());
    beClaim1A();
    EXPECT_EQ(QStringList {"error|Actual Costs||0|FixedFee"_q}, figures());
    form.IncludePage4 = false;
    EXPECT_EQ(QStringList(), figures());
    form.IncludePage4 = true;
    form.ActualCostsIncurred.FixedFee = QString();
    EXPECT_EQ(QStringList(), figures());
}

TEST_F(CheckFigures, OfAClaimInWhichNothingCanBeLookedUp)
{
    addDated("01:00", "03/06/25");
    setContent(*group, "orderid", "99999999999");
    const QString item1 = "error|Schedule of Time|schedule|1|"_q;
    EXPECT_EQ(item1, figures().value(0));
    EXPECT_EQ("error|Schedule of Time|schedule|2|"_q, figures().value(1));
    EXPECT_EQ("Fee earner group A: Order ID holds \"99999999999\", which is too large a number; put it right there."_q,
        said("figure").front());
    form.ClientDetails.Surname = QString(); // the rest is still checked
    EXPECT_EQ(1, found("missing").size());
}
