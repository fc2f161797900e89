// The figures of the totals strip, and how they are worked out.

#include "base/mdFormatMoney.h"
#include "costing/checking/mdClaimTotals.h"
#include "costing/checking/mdWhy.h"
#include "formdata/mdCostsLimit.h"
#include "tests/formdata/clsClaimTest.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>

namespace {

class ClaimTotals : public clsClaimTest {
protected:
    void SetUp() override
    {
        group = claim.addGroup();
        feeEarner = claim.addFeeEarner(group, "MO");
        claim.addItem(feeEarner, "03:20"); // at 40.00
        feeEarner->Calls = 2; // at 4.00
        claim.addDisbursement("10.00", "1.75");
        claim.addDisbursement("100.00", "17.50", true);
        form.SeparateCounselAndNonCounselDisbursements();
        const auto invoice = form.AddExpertInvoice();
        invoice->NetAmount = "1000.00"_q;
        invoice->VATAmount = "175.00"_q;
    }

    static QString inWords(const clsClaimTotal &total)
    {
        return total.Words + u' ' + (total.hasFailed() ? u'!' + total.Failure : mdFormatMoney(total.Value));
    }
    static QStringList inWords(const std::vector<clsClaimTotal> &totals)
    {
        QStringList words;
        for (const clsClaimTotal &total : totals)
            words << inWords(total);
        return words;
    }
    /// The steps of a figure, as text and shown value; the last is the figure itself.
    QStringList why(const char *key) const
    {
        QStringList steps;
        const clsBill bill(form);
        if (const auto found = mdWhyClaimTotal(bill, QString::fromLatin1(key)))
            for (const clsWhyStep &step : found->steps())
                steps << step.Text + u' ' + step.shown();
        return steps;
    }

    clsTestClaim::Group group;
    clsTestClaim::FeeEarner feeEarner;
};

} // namespace

TEST_F(ClaimTotals, OfClaim1)
{
    // VAT: 17.5 per cent of 141.33 is 24.73275, at four decimals 24.7328; with 1.75 and 175 it is 201.4828.
    const clsClaimTotals totals = mdClaimTotals(form);
    EXPECT_EQ(QStringList({"Schedule 133.33"_q, "Letters and calls 8.00"_q, "Experts 1,000.00"_q,
                  "Disbursements 10.00"_q, "VAT 201.48"_q, "Total 1,352.81"_q}),
        inWords(totals.Figures));
    EXPECT_EQ(QStringList {"Counsel 117.50"_q}, inWords(totals.Apart));
    EXPECT_EQ("Other 1,018.00"_q, inWords(totals.Other));
    EXPECT_EQ("Costs limit 1,251.33"_q, inWords(totals.Costs)); // 133.33 + 8 + 1000 + 10 + 100
    EXPECT_FALSE(totals.Limit);
    mdSetCostsLimit(form, "1300.00"_q);
    EXPECT_EQ(MoneyFromText(u"1300"), mdClaimTotals(form).Limit);
}

TEST_F(ClaimTotals, OfClaim1A)
{
    form.FormType = "Claim1A"_q;
    form.ActualCostsIncurred.FixedFee = "500.00"_q;
    claim.addFASItem(2, "90.59", "25")->VATForFAS = "39.63"_q; // 226.475
    const clsClaimTotals totals = mdClaimTotals(form);
    EXPECT_EQ("VAT 241.11"_q, inWords(totals.Figures[4]));
    EXPECT_EQ("Total 1,618.92"_q, inWords(totals.Figures[5])); // 1151.33 + 226.475 + 201.4828 + 39.63 = 1618.9178
    EXPECT_EQ(
        QStringList({"Counsel 117.50"_q, "Advocacy scheme 226.48"_q, "Fixed fee 500.00"_q}), inWords(totals.Apart));
    EXPECT_EQ("Costs limit 1,477.81"_q, inWords(totals.Costs)); // 1251.33 + 226.475 = 1477.805
}

TEST_F(ClaimTotals, OfAnEmptyClaimAreZero)
{
    const clsZR3Form empty;
    for (const clsClaimTotal &total : mdClaimTotals(empty).Figures)
        EXPECT_EQ("0.00"_q, mdFormatMoney(total.Value)) << total.Words.toStdString() << total.Failure.toStdString();
}

TEST_F(ClaimTotals, FailEachByItself)
{
    form.ExpertInvoice(1)->NetAmount = "much"_q;
    const clsClaimTotals totals = mdClaimTotals(form);
    const QString cause = "Expert invoice 1: Net Amount holds \"much\", which is not an amount"_q;
    EXPECT_EQ(QStringList({"Schedule 133.33"_q, "Letters and calls 8.00"_q, "Experts !"_q + cause,
                  "Disbursements 10.00"_q, "VAT 201.48"_q, "Total !"_q + cause}),
        inWords(totals.Figures));
    EXPECT_EQ(QStringList {"Counsel 117.50"_q}, inWords(totals.Apart));
    EXPECT_EQ("Other !"_q + cause, inWords(totals.Other));
    EXPECT_EQ("Costs limit !"_q + cause, inWords(totals.Costs));
    EXPECT_EQ(QStringList {"Expert invoice 1 !"_q}, why("ExpertInvoicesNetTotal"));
}

TEST_F(ClaimTotals, SayHowTheyComeAbout)
{
    EXPECT_EQ(QStringList({"Letters and calls 8.00"_q, "Experts 1,000.00"_q, "Other disbursements 10.00"_q,
                  "Other 1,018.00"_q}),
        why("other"));
    EXPECT_EQ(QStringList({"Profit costs 141.33"_q, "Experts 1,000.00"_q, "Other disbursements 10.00"_q,
                  "Counsel's fees 100.00"_q, "Costs, net with counsel 1,251.33"_q}),
        why("limit"));
    EXPECT_EQ(QStringList({"VAT on profit costs 24.73"_q, "VAT on experts 175.00"_q,
                  "VAT on other disbursements 1.75"_q, "VAT 201.48"_q}),
        why("vat"));
    EXPECT_EQ(QStringList(), why("nothing"));
    form.FormType = "Claim1A"_q;
    form.ActualCostsIncurred.FixedFee = "500.00"_q;
    EXPECT_EQ(QStringList {"Fixed fee 500.00"_q}, why("fixedfee"));
    EXPECT_EQ(6, why("limit").size());
}

// For every claim, each figure equals the last step of its explanation.
TEST_F(ClaimTotals, AreWhereTheirReasonsEnd)
{
    for (const QString &name : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files, QDir::Name)) {
        clsZR3Form sample;
        ASSERT_TRUE(sample.LoadXML(mdSamplePath(name)));
        const clsBill bill(sample);
        clsClaimTotals totals = mdClaimTotals(bill);
        std::vector<clsClaimTotal> all = totals.Figures;
        all.insert(all.end(), totals.Apart.begin(), totals.Apart.end());
        all.push_back(totals.Other);
        all.push_back(totals.Costs);
        for (const clsClaimTotal &total : all) {
            const auto found = mdWhyClaimTotal(bill, total.Key);
            ASSERT_TRUE(found) << name.toStdString() << ' ' << total.Key.toStdString();
            EXPECT_EQ(MoneyToText(total.Value), found->figure())
                << name.toStdString() << ' ' << total.Key.toStdString();
        }
    }
}

TEST_F(ClaimTotals, ShowStepsAsTheyArePrinted)
{
    group->Reference = "A"_q;
    group->Enhance = true;
    group->EnhancementRate = "50.00"_q;
    const auto found = mdWhyScheduleItem(form, 1);
    QStringList shown;
    for (const clsWhyStep &step : found->steps())
        shown << step.shown();
    EXPECT_EQ(QStringList({"group A"_q, "40.00"_q, "133.33"_q, "50 %"_q, "50 %"_q, "66.67"_q, "200.00"_q}), shown);
}
