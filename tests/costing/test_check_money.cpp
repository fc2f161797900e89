// Disbursements, experts, the amounts loaded from the bill, the costs limit, letters and calls.

#include "tests/costing/clsCheckTest.h"

namespace {

class CheckMoney : public clsCheckTest { };
class CheckCommunications : public clsCheckTest { };

} // namespace

TEST_F(CheckMoney, AnAmountOfNothing)
{
    const auto spent = addSpent("0.01");
    EXPECT_EQ(QStringList(), found("amount-zero"));
    spent->Amount = "0.00"_q;
    spent->Description = "Court fee"_q;
    EXPECT_EQ(QStringList {"error|Disbursements|disbursements|1|Amount"_q}, found("amount-zero"));
    EXPECT_EQ(QStringList {"Disbursement 1, Court fee, has an amount of 0.00: enter the amount, or delete it."_q},
        said("amount-zero"));
    spent->Amount = "none"_q; // can't be computed, which is another rule's finding
    EXPECT_EQ(QStringList(), found("amount-zero"));
    EXPECT_EQ(1, found("figure").size());
}

TEST_F(CheckMoney, AnInvoiceWithCostsAndANetAmountOfNothing)
{
    const auto invoice = addInvoice("0.00");
    EXPECT_EQ(QStringList(), found("amount-zero")); // nothing at all
    const QStringList one = {"error|Disbursements|experts|1|NetAmount"_q};
    for (const char *property : {"TotalPrepCost", "TotalCourtCost", "TravelTimeCosts", "OtherCosts", "VATAmount"}) {
        clsXMLField &cost = *invoice->field(QString::fromLatin1(property));
        cost.writeText("1.00"_q);
        EXPECT_EQ(one, found("amount-zero")) << property;
        cost.writeText("0.00"_q);
    }
    invoice->TotalPrepCost = "a lot"_q; // counts as zero
    EXPECT_EQ(QStringList(), found("amount-zero"));
    invoice->TotalPrepCost = "1.00"_q;
    invoice->VATAmount = "x"_q;
    EXPECT_EQ(QStringList(), found("amount-zero"));
}

TEST_F(CheckMoney, ANetAmountThatIsNotTheSumOfTheCosts)
{
    const auto invoice = addInvoice("10.00");
    invoice->TotalCourtCost = "20.00"_q;
    invoice->TravelTimeCosts = "30.00"_q;
    invoice->OtherCosts = "40.00"_q;
    invoice->NetAmount = "100.00"_q;
    invoice->ExpertType = "Surveyor"_q;
    EXPECT_EQ(QStringList(), found("net-differs"));
    invoice->NetAmount = "99.99"_q;
    EXPECT_EQ(QStringList {"warning|Disbursements|experts|1|NetAmount"_q}, found("net-differs"));
    EXPECT_EQ(QStringList {"Expert invoice 1, Surveyor, has a net amount of 99.99, but its costs add up to 100.00: "
                           "correct one of them."_q},
        said("net-differs"));
    invoice->NetAmount = "0"_q; // another rule's finding
    EXPECT_EQ(QStringList(), found("net-differs"));
    invoice->NetAmount = "60.00"_q;
    invoice->OtherCosts = QString();
    EXPECT_EQ(QStringList(), found("net-differs"));
    invoice->NetAmount = "60.00 or so"_q;
    EXPECT_EQ(QStringList(), found("net-differs"));
}

TEST_F(CheckMoney, AVATThatIsNotThatOfTheAmount)
{
    form.VATRate = "20.00"_q;
    const auto spent = addSpent("146.00", "29.21"); // 29.20, and a penny
    addInvoice("100.00", "19.99");
    EXPECT_EQ(QStringList(), found("vat-differs"));
    spent->VAT = "36.50"_q;
    EXPECT_EQ(QStringList {"warning|Disbursements|disbursements|1|VAT"_q}, found("vat-differs"));
    EXPECT_EQ(QStringList {"Disbursement 1 has VAT of 36.50, but 20 % of 146.00 is 29.20: correct it."_q},
        said("vat-differs"));
    form.ExpertInvoice(1)->VATAmount = "20.0101"_q;
    EXPECT_EQ(2, found("vat-differs").size());
    EXPECT_EQ("warning|Disbursements|experts|1|VATAmount"_q, found("vat-differs").back());
    spent->VAT = "0.00"_q; // many invoices have none
    form.ExpertInvoice(1)->VATAmount = "x"_q;
    EXPECT_EQ(QStringList(), found("vat-differs"));
}

TEST_F(CheckMoney, AnyVATOfAClaimWithout)
{
    addSpent("100.00", "17.50");
    EXPECT_EQ(QStringList(), found("vat-differs"));
    form.VAT = false;
    EXPECT_EQ(QStringList {"Disbursement 1 has VAT of 17.50, but the claim charges no VAT: take it off, or tick VAT in "
                           "Form Setup."_q},
        said("vat-differs"));
    form.Disbursement(1)->VAT = "0.00"_q;
    EXPECT_EQ(QStringList(), found("vat-differs"));
    form.Disbursement(1)->VAT = "1.00"_q;
    setContent(form, "vat", "Perhaps");
    EXPECT_EQ(QStringList(), found("vat-differs"));
}

TEST_F(CheckMoney, AVoucherFromTwentyPounds)
{
    const auto spent = addSpent("17.02", "2.97");
    EXPECT_EQ(QStringList(), found("voucher"));
    spent->VAT = "2.98"_q;
    EXPECT_EQ(QStringList {"note|Disbursements|disbursements|1|Amount"_q}, found("voucher"));
    EXPECT_EQ(QStringList {"Disbursement 1 is 20.00 with VAT: send its voucher with the claim."_q}, said("voucher"));
    addFee();
    EXPECT_EQ(1, found("voucher").size());
    spent->VAT = "x"_q;
    EXPECT_EQ(QStringList(), found("voucher"));
}

TEST_F(CheckMoney, SharesOfMoreThanTheWhole)
{
    const auto share = [this](const char *type, const char *percent) {
        const auto added = form.AddJointInstruction();
        added->ExpertType = QString::fromLatin1(type);
        added->PercentApportioned = QString::fromLatin1(percent);
        return added;
    };
    share("Surveyor", "50");
    const auto second = share("Surveyor", "50.00");
    share("surveyor", "100"); // another type
    share("Doctor", "33.34");
    EXPECT_EQ(QStringList(), found("joint-shares"));
    second->PercentApportioned = "50.01"_q;
    EXPECT_EQ(QStringList {"warning|Disbursements|joint|2|PercentApportioned"_q}, found("joint-shares"));
    EXPECT_EQ(
        QStringList {"The shares in the joint expert Surveyor add up to 100.01 %: correct them to 100 or less."_q},
        said("joint-shares"));
    share("Doctor", "66.67");
    second->OrderID = 6; // after the last of the doctor's
    EXPECT_EQ(QStringList({"warning|Disbursements|joint|5|PercentApportioned"_q,
                  "warning|Disbursements|joint|6|PercentApportioned"_q}),
        found("joint-shares"));
    second->PercentApportioned = "all of it"_q;
    EXPECT_EQ(1, found("joint-shares").size());
}

TEST_F(CheckMoney, AmountsLoadedFromTheBill)
{
    beClaim1A();
    auto &costs = form.ActualCostsIncurred;
    costs.PrivateLawPreviousClaimNo = true;
    costs.PrivateLawSettlementFeeNo = true;
    // An hour at 40.00, and an hour of advocacy at 50.00: the button fills in 40.00.
    addDated("01:00", "02/06/25")->Advocacy = true;
    costs.CareAndSupervisionProfitCosts = "40.00"_q;
    costs.PrivateLawProfitCosts = "0.00"_q;
    EXPECT_EQ(QStringList(), found("load-stale"));
    costs.PrivateLawProfitCosts = "39.99"_q;
    EXPECT_EQ(QStringList {"warning|Actual Costs||0|PrivateLawProfitCosts"_q}, found("load-stale"));
    EXPECT_EQ(QStringList {"The profit costs of the private law cases are 39.99, but the bill now gives 40.00: choose "
                           "Load From Bill again."_q},
        said("load-stale"));
    EXPECT_EQ(QStringList(), found("load-negative"));
    costs.CareAndSupervisionProfitCosts = "-0.01"_q;
    EXPECT_EQ(QStringList {"error|Actual Costs||0|CareAndSupervisionProfitCosts"_q}, found("load-negative"));
    EXPECT_EQ(2, found("load-stale").size());
    costs.CareAndSupervisionProfitCosts = "minus one"_q; // counts as zero
    EXPECT_EQ(QStringList(), found("load-negative"));
    EXPECT_EQ(1, found("load-stale").size());
    item->TTime = QString(); // the amount of the bill can't be computed
    EXPECT_EQ(QStringList(), found("load-stale"));
    costs.CareAndSupervisionProfitCosts = "-1.00"_q;
    EXPECT_EQ(1, found("load-negative").size());
    form.FormType = "Claim1"_q;
    EXPECT_EQ(QStringList(), found("load-negative"));
    EXPECT_EQ(QStringList(), found("load-stale"));
}

TEST_F(CheckMoney, TheCostsLimitOfClaim1)
{
    // 40.00 for the item and 50.00 for counsel: 90.00 together.
    addFee("50.00", "10.00");
    facts.CostsLimit = "100.01"_q;
    EXPECT_EQ(QStringList(), found("costs-limit"));
    facts.CostsLimit = "100"_q; // 90 per cent
    EXPECT_EQ(QStringList {"note|Costs Limit||0|"_q}, found("costs-limit"));
    facts.CostsLimit = "90.00"_q; // equal to it
    EXPECT_EQ(QStringList {"note|Costs Limit||0|"_q}, found("costs-limit"));
    facts.CostsLimit = "89.99"_q;
    EXPECT_EQ(QStringList {"error|Costs Limit||0|"_q}, found("costs-limit"));
    EXPECT_EQ(QStringList {"The costs are 90.00 of the limit of 89.99, net with counsel: have the limit raised before "
                           "you send the claim."_q},
        said("costs-limit"));
    for (const char *none : {"", "0.00", "-5", "low"}) {
        facts.CostsLimit = QString::fromLatin1(none);
        EXPECT_EQ(QStringList(), found("costs-limit")) << none;
    }
    facts.CostsLimit = "1"_q;
    item->TTime = QString();
    EXPECT_EQ(QStringList(), found("costs-limit"));
}

TEST_F(CheckMoney, TheCostsLimitOfClaim1A)
{
    beClaim1A();
    addFee("50.00", "10.00");
    addHearing(); // 10.00
    facts.CostsLimit = "99.99"_q;
    EXPECT_EQ(QStringList {"error|Costs Limit||0|"_q}, found("costs-limit"));
    facts.CostsLimit = "100.00"_q;
    EXPECT_EQ(QStringList {"note|Costs Limit||0|"_q}, found("costs-limit"));
}

TEST_F(CheckCommunications, AThirdGroupIsNotBilled)
{
    const auto second = addEarner("B");
    const auto third = addEarner("C");
    for (const auto &earner : {feeEarner, second, third})
        earner->LettersIn = 1;
    EXPECT_EQ(QStringList {"error|Communications|feeearners|3|LettersIn"_q}, found("group-not-billed"));
    EXPECT_EQ(
        QStringList {"Fee earner C: the letters in are not billed, because two groups before have taken both lines "
                     "of the form; give them to a fee earner of one of these."_q},
        said("group-not-billed"));
    third->LettersOut = 1; // the first of this kind, which still has free lines
    EXPECT_EQ(QStringList {"error|Communications|feeearners|3|LettersIn"_q}, found("group-not-billed"));
    feeEarner->LettersOut = 1;
    second->LettersOut = 1;
    EXPECT_EQ(QStringList {"error|Communications|feeearners|3|LettersOut"_q}, found("group-not-billed"));
    second->Group()->LettersInRate = "0.00"_q; // uses no line, so the third group gets one
    second->Group()->LettersOutRate = "0.00"_q;
    EXPECT_EQ(QStringList(), found("group-not-billed"));
    EXPECT_EQ(2, found("communications-rate-zero").size());
}

TEST_F(CheckCommunications, GroupsCountByTheirOrder)
{
    const auto second = addEarner("B");
    const auto third = addEarner("C");
    for (const auto &earner : {feeEarner, second, third})
        earner->Calls = 1;
    group->OrderID = 3;
    third->Group()->OrderID = 1;
    EXPECT_EQ(QStringList {"error|Communications|feeearners|1|Calls"_q}, found("group-not-billed"));
    setContent(*third, "calls", "99999999999"); // can't be counted
    EXPECT_EQ(QStringList(), found("group-not-billed"));
}

TEST_F(CheckCommunications, AKindWithoutARate)
{
    group->CallsRate = "0.00"_q;
    group->LettersOutRate = QString(); // an empty rate counts as zero
    EXPECT_EQ(QStringList(), found("communications-rate-zero"));
    feeEarner->LettersOut = 1;
    feeEarner->Calls = 1;
    EXPECT_EQ(QStringList({"error|Fee Earners / Rates|groups|1|CallsRate"_q,
                  "error|Fee Earners / Rates|groups|1|LettersOutRate"_q}),
        found("communications-rate-zero"));
    EXPECT_EQ("Group A has calls but no rate for them, so that they are not billed: enter the rate."_q,
        said("communications-rate-zero").front());
    feeEarner->Calls = 0;
    group->LettersOutRate = "0.01"_q;
    EXPECT_EQ(QStringList(), found("communications-rate-zero"));
    setContent(*feeEarner, "calls", "99999999999");
    EXPECT_EQ(QStringList(), found("communications-rate-zero"));
}
