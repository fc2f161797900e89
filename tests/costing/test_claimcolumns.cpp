// The columns of a claim in a list of claims.

#include "costing/clsBill.h"
#include "costing/mdClaimColumns.h"
#include "tests/costing/clsCheckTest.h"

namespace {

class ClaimColumns : public clsCheckTest {
protected:
    void SetUp() override
    {
        clsCheckTest::SetUp(); // an hour at 40.00
        form.VATRate = "20"_q;
        addSpent("10.00", "2.00");
        addFee("100.00", "20.00");
        addInvoice("200.00", "40.00");
    }

    /// The amounts as texts, "-" if there is none and "!" if it can't be computed.
    static QStringList amountsOf(const clsClaimColumns &columns)
    {
        QStringList texts;
        for (const clsClaimColumn &column : columns.amounts)
            texts << (!column.failure.isEmpty() ? QStringLiteral("!")
                    : column.amount             ? MoneyToText(*column.amount)
                                                : QStringLiteral("-"));
        return texts;
    }
};

} // namespace

TEST_F(ClaimColumns, AreThoseOfClaim1)
{
    form.ClientDetails.Title = " Ms "_q;
    form.ClientDetails.FirstName = QString();
    form.ClientDetails.Surname = "Okafor"_q;
    form.ClientDetails.CaseReferenceNumber = "AB/1"_q;
    const clsClaimColumns columns = mdClaimColumns(clsBill(form));
    EXPECT_EQ("Claim1", columns.formType);
    EXPECT_EQ("Ms Okafor", columns.client);
    EXPECT_EQ("AB/1", columns.reference);
    EXPECT_EQ(1, columns.items);
    // 8.00 on the profit costs, 2.00 and 40.00; 40 + 210 + 50; with counsel's 120.
    EXPECT_EQ(QStringList({"40"_q, "210"_q, "-"_q, "50"_q, "300"_q, "120"_q, "420"_q}), amountsOf(columns));
    EXPECT_FALSE(columns.hasFailures());
    QStringList keys;
    for (const clsClaimColumn &column : columns.amounts)
        keys << QString::fromLatin1(column.key);
    EXPECT_EQ("profitcosts disbursements fas vat total counsel all", keys.join(u' '));
}

TEST_F(ClaimColumns, AreThoseOfClaim1A)
{
    beClaim1A();
    addHearing()->VATForFAS = "2.00"_q; // 10.00
    const clsClaimColumns columns = mdClaimColumns(clsBill(form));
    EXPECT_EQ(QStringList({"40"_q, "210"_q, "10"_q, "52"_q, "312"_q, "120"_q, "432"_q}), amountsOf(columns));
    // Only advocacy is billed.
    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ(0, mdClaimColumns(clsBill(form)).items);
}

TEST_F(ClaimColumns, AreRoundedEachForItself)
{
    // 0.0025 and 0.0025: each rounds to zero, their sum to a penny.
    form.ScheduleOfTimeItem(1)->TTime = "00:00"_q;
    form.Disbursement(1)->Amount = "0.0025"_q;
    form.Disbursement(1)->VAT = "0.0025"_q;
    form.ExpertInvoice(1)->NetAmount = "0"_q;
    form.ExpertInvoice(1)->VATAmount = "-0.005"_q;
    form.SeparateCounselAndNonCounselDisbursements();
    const QStringList amounts = amountsOf(mdClaimColumns(clsBill(form)));
    EXPECT_EQ(QStringList({"0"_q, "0"_q, "-"_q, "0"_q, "0"_q}), amounts.mid(0, 5)); // -0.0025 and 0
    form.ExpertInvoice(1)->VATAmount = "-0.0075"_q; // -0.005, away from zero
    EXPECT_EQ("-0.01", amountsOf(mdClaimColumns(clsBill(form)))[3]);
}

TEST_F(ClaimColumns, AFigureThatFailsTakesOnlyWhatDependsOnIt)
{
    form.ScheduleOfTimeItem(1)->TTime = "an hour"_q;
    const clsClaimColumns columns = mdClaimColumns(clsBill(form));
    EXPECT_EQ(QStringList({"!"_q, "210"_q, "-"_q, "!"_q, "!"_q, "120"_q, "!"_q}), amountsOf(columns));
    EXPECT_EQ(1, columns.items);
    EXPECT_TRUE(columns.hasFailures());
    EXPECT_EQ(QStringList("Schedule item 1 has the time \"an hour\", which is not one"_q), columns.failures());
}
