// The check for items that bill nothing.

#include "costing/mdCheckForBlankItems.h"
#include "tests/formdata/clsClaimTest.h"

namespace {

using Error = clsRunTimeError;

class BlankItems : public clsClaimTest {
protected:
    QString report()
    {
        claim.user.messages.clear();
        CheckForBlankItems(form);
        EXPECT_EQ(1u, claim.user.messages.size());
        const auto &told = claim.user.messages.at(0);
        EXPECT_EQ("Blank Items"_q, told.title);
        EXPECT_EQ(clsUserInterface::OKOnly, told.buttons);
        EXPECT_FALSE(told.system);
        return told.text;
    }
};

} // namespace

TEST_F(BlankItems, AnEmptyClaimHasNone)
{
    EXPECT_EQ("No blank items found"_q, report());
}

TEST_F(BlankItems, BothKindsAreReportedInTheirOrder)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "00:00");
    claim.addItem(feeEarner, "00:00");
    claim.addItem(feeEarner, "00:01");
    claim.addDisbursement("0.00", "0.00");
    EXPECT_EQ("Blank items: \r\n\r\nSchedule of Time Items: 2\r\nDisbursements: 1\r\n"_q, report());
}

TEST_F(BlankItems, OneKindStandsAlone)
{
    claim.addDisbursement("0", "");
    EXPECT_EQ("Blank items: \r\n\r\nDisbursements: 1\r\n"_q, report());
    claim.form.DeleteDisbursement(1);
    claim.addItem(claim.addFeeEarner(claim.addGroup()), "0:0");
    EXPECT_EQ("Blank items: \r\n\r\nSchedule of Time Items: 1\r\n"_q, report());
}

TEST_F(BlankItems, ADisbursementIsBlankOnlyWhereBothAmountsAreNothing)
{
    struct Row {
        const char *amount;
        const char *vat;
        bool blank;
    };
    for (const Row &row : {Row {"0.00", "0.00", true}, {"", "", true}, {"x", "y", true}, {"0.00", "5.00", false},
             {"5.00", "0.00", false}, {"0.001", "0", false}, {"-1", "0", false}, {"-0.00", "0", true}}) {
        clsTestClaim other;
        other.addDisbursement(row.amount, row.vat);
        EXPECT_EQ(row.blank ? 1 : 0, mdCountBlankDisbursements(other.form)) << row.amount << ' ' << row.vat;
    }
}

TEST_F(BlankItems, CounselsFeesAreDisbursementsToo)
{
    claim.addDisbursement("0", "0", true);
    EXPECT_EQ(1, mdCountBlankDisbursements(form));
}

TEST_F(BlankItems, ItemsThatAreNotBilledAreExaminedAllTheSame)
{
    claim.addItem(claim.addFeeEarner(claim.addGroup()), "00:00");
    form.FormType = "Claim1A"_q;
    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ(1, mdCountBlankScheduleItems(form));
}

TEST_F(BlankItems, NothingElseIsExamined)
{
    form.AddExpertInvoice();
    form.AddFASItem();
    form.AddJointInstruction();
    claim.addFeeEarner(claim.addGroup());
    EXPECT_EQ("No blank items found"_q, report());
}

TEST_F(BlankItems, TheCheckChangesNothing)
{
    claim.addItem(claim.addFeeEarner(claim.addGroup()), "00:00");
    form.AddFASItem();
    const QString before = form.XMLOutput();
    report();
    EXPECT_EQ(before, form.XMLOutput());
}

TEST_F(BlankItems, ATimeThatWasNeverEnteredIsTheSubscriptError)
{
    form.AddScheduleOfTimeItem();
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { CheckForBlankItems(form); }));
    EXPECT_TRUE(claim.user.messages.empty());
}
