// The totals of the bill.

#include "base/mdPercentageCalculate.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"
#include "tests/formdata/clsClaimTest.h"

namespace {

using Error = clsRunTimeError;

using Totals = clsClaimTest;
using CounselTotals = clsClaimTest;
using FASTotals = clsClaimTest;

} // namespace

TEST_F(Totals, OfAnEmptyClaimAreNothing)
{
    for (const char16_t *type : {u"Claim1", u"Claim1A"}) {
        form.FormType = QString::fromUtf16(type);
        for (int column = 0; column < 5; ++column) {
            EXPECT_EQ("00:00"_q, ColumnTimeTotal(form, column));
            EXPECT_EQ(Money(), ColumnClaimTotal(form, column));
        }
        EXPECT_EQ(Money(), ScheduleTotal(form));
        EXPECT_EQ(Money(), AdvocacyTotal(form));
        EXPECT_EQ(Money(), CommsTotal(form));
        EXPECT_EQ(Money(), ProfitCostsTotal(form));
        EXPECT_EQ(Money(), FASItemsTotal(form));
        EXPECT_EQ(Money(), FASVATTotal(form));
        EXPECT_EQ(Money(), CounselFeesTotal(form));
        EXPECT_EQ(Money(), CounselDisbursementsAmountTotal(form));
        EXPECT_EQ(Money(), NonCounselDisbursementsVATTotal(form));
        EXPECT_EQ(Money(), ExpertInvoicesNetTotal(form));
    }
}

TEST_F(Totals, MinutesOfAColumnCarryIntoHours)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "00:59");
    claim.addItem(feeEarner, "00:02");
    EXPECT_EQ("01:01"_q, ColumnTimeTotal(form, 0));
    claim.addItem(feeEarner, "99:00");
    EXPECT_EQ("100:01"_q, ColumnTimeTotal(form, 0));
}

TEST_F(Totals, EachItemCountsInItsOwnColumn)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "01:00", "ACT"); // 40
    claim.addItem(feeEarner, "02:00", "DOT"); // 80
    claim.addItem(feeEarner, "03:00", "HIN"); // 120
    claim.addItem(feeEarner, "04:00", "HIN")->Travel = true; // 4 hours at 20
    claim.addItem(feeEarner, "05:00", "DOT")->Waiting = true; // 5 hours at 20
    const char *times[] = {"01:00", "02:00", "03:00", "04:00", "05:00"};
    const char *claims[] = {"40", "80", "120", "80", "100"};
    for (int column = 0; column < 5; ++column) {
        EXPECT_EQ(QString::fromLatin1(times[column]), ColumnTimeTotal(form, column));
        EXPECT_EQ(QString::fromLatin1(claims[column]), textOf(ColumnClaimTotal(form, column)));
    }
    EXPECT_EQ("420"_q, textOf(ScheduleTotal(form)));
}

TEST_F(Totals, TheTotalIsTheSumOfThePrintedItems)
{
    // 1 minute at 40.00 is 0.6667, printed 0.67; three of them are 2.01, not the 2.00 of 3 minutes.
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    for (int i = 0; i < 3; ++i)
        claim.addItem(feeEarner, "00:01");
    EXPECT_EQ("2.01"_q, textOf(ColumnClaimTotal(form, 0)));
    EXPECT_EQ("2.01"_q, textOf(ScheduleTotal(form)));
    EXPECT_EQ("00:03"_q, ColumnTimeTotal(form, 0));
}

TEST_F(Totals, NonAdvocacyIsLeftOutOnClaim1AOnlyAndFromTheColumnsOnly)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    feeEarner->Calls = 1;
    claim.addItem(feeEarner, "01:00"); // 40
    claim.addItem(feeEarner, "02:00")->Advocacy = true; // 100
    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ("140"_q, textOf(ScheduleTotal(form))); // Claim1
    EXPECT_EQ("03:00"_q, ColumnTimeTotal(form, 0));
    form.FormType = "Claim1A"_q;
    EXPECT_EQ("100"_q, textOf(ScheduleTotal(form)));
    EXPECT_EQ("02:00"_q, ColumnTimeTotal(form, 0));
    EXPECT_EQ("100"_q, textOf(AdvocacyTotal(form)));
    EXPECT_EQ("4"_q, textOf(CommsTotal(form)));
    EXPECT_EQ("104"_q, textOf(ProfitCostsTotal(form)));
    form.ExcludeNonAdvocacy = false;
    EXPECT_EQ("140"_q, textOf(ScheduleTotal(form)));
    EXPECT_EQ("100"_q, textOf(AdvocacyTotal(form)));
}

TEST_F(Totals, TheColumnsTakeTheFlagsAsTheyAreAndNotAsTheExportListWasBuilt)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "01:00");
    EXPECT_TRUE(form.ScheduleOfTimeItemsForExportCollection().empty());
    EXPECT_EQ("40"_q, textOf(ScheduleTotal(form)));
}

TEST_F(Totals, AdvocacyAtTheHourlyRateStillCountsAsAdvocacy)
{
    const auto item = claim.addItem(claim.addFeeEarner(claim.addGroup()), "01:00");
    item->Advocacy = true;
    item->UseHourlyRate = true;
    EXPECT_EQ("40"_q, textOf(AdvocacyTotal(form)));
}

TEST_F(Totals, AnItemOfTheSchemeReplacesTheSchedulesAdvocacyOnClaim1A)
{
    claim.addItem(claim.addFeeEarner(claim.addGroup()), "01:00")->Advocacy = true; // 50
    claim.addFASItem(1, "10.00", "12.55"); // 11.255
    EXPECT_EQ("50"_q, textOf(AdvocacyTotal(form)));
    form.FormType = "Claim1A"_q;
    EXPECT_EQ("11.26"_q, textOf(AdvocacyTotal(form)));
    EXPECT_EQ("11.255"_q, textOf(FASItemsTotal(form)));
    form.DeleteFASItem(1);
    EXPECT_EQ("50"_q, textOf(AdvocacyTotal(form)));
    // Even if it is worth nothing.
    claim.addFASItem(0, "0", "");
    EXPECT_EQ("0"_q, textOf(AdvocacyTotal(form)));
}

TEST_F(Totals, ProfitCostsAreScheduleAndCommunications)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup("100.10"));
    claim.addItem(feeEarner, "01:00");
    EXPECT_EQ("100.1"_q, textOf(ProfitCostsTotal(form)));
    // 17.50 per cent of 100.10, with its fourth decimal.
    EXPECT_EQ("17.5175"_q, textOf(PercentageCalculate(ProfitCostsTotal(form), form.VATRate())));
    feeEarner->LettersOut = 2;
    EXPECT_EQ("110.1"_q, textOf(ProfitCostsTotal(form)));
}

TEST_F(Totals, NoTotalReadsTheVATTick)
{
    claim.addItem(claim.addFeeEarner(claim.addGroup("100.00")), "01:00");
    form.VAT = false;
    EXPECT_EQ("17.5"_q, textOf(PercentageCalculate(ProfitCostsTotal(form), form.VATRate())));
    form.XMLNode().remove_child("vat");
    EXPECT_EQ("100"_q, textOf(ProfitCostsTotal(form)));
}

TEST_F(Totals, DisbursementsAreSummedExactlyByTheirDerivedCollections)
{
    claim.addDisbursement("1.0001", "0.0002");
    claim.addDisbursement("1,000.50", "-3");
    claim.addDisbursement("20", "4", true);
    claim.addDisbursement("0.005", "0.001", true);
    EXPECT_EQ(Money(), NonCounselDisbursementsAmountTotal(form)); // not separated yet
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ("1001.5001"_q, textOf(NonCounselDisbursementsAmountTotal(form)));
    EXPECT_EQ("-2.9998"_q, textOf(NonCounselDisbursementsVATTotal(form)));
    EXPECT_EQ("20.005"_q, textOf(CounselDisbursementsAmountTotal(form)));
    EXPECT_EQ("4.001"_q, textOf(CounselDisbursementsVATTotal(form)));
}

TEST_F(Totals, OnlyNetAndVATOfAnExpertCount)
{
    for (const char *net : {"100.00", "0.125"}) {
        const auto invoice = form.AddExpertInvoice();
        for (const clsXMLPropertyPlace &place : invoice->properties())
            if (place.property->kind == clsXMLKind::Text)
                invoice->field(QString::fromLatin1(place.property->name))->writeText("999"_q);
        invoice->NetAmount = QString::fromLatin1(net);
        invoice->VATAmount = "17.50"_q;
    }
    EXPECT_EQ("100.125"_q, textOf(ExpertInvoicesNetTotal(form)));
    EXPECT_EQ("35"_q, textOf(ExpertInvoicesVATTotal(form)));
}

TEST_F(Totals, ABlankAmountIsTheTypeErrorOfItsOwnTotalOnly)
{
    claim.addDisbursement("", "1");
    claim.addDisbursement("2", "", true);
    form.AddExpertInvoice()->NetAmount = QString();
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { NonCounselDisbursementsAmountTotal(form); }));
    EXPECT_EQ("1"_q, textOf(NonCounselDisbursementsVATTotal(form)));
    EXPECT_EQ("2"_q, textOf(CounselDisbursementsAmountTotal(form)));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CounselDisbursementsVATTotal(form); }));
    EXPECT_EQ("2"_q, textOf(CounselFeesAmountTotal(form)));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CounselFeesVATTotal(form); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CounselFeesTotal(form); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { ExpertInvoicesNetTotal(form); }));
    EXPECT_EQ("0"_q, textOf(ExpertInvoicesVATTotal(form)));
}

TEST_F(Totals, AnItemThatCanNotBePricedStopsItsColumnAndTheTotalsAbove)
{
    const auto group = claim.addGroup();
    const auto feeEarner = claim.addFeeEarner(group);
    claim.addItem(feeEarner, "01:00", "ACT");
    claim.addItem(feeEarner, "01:00", "DOT")->FeeEarnerUniqueID = QString();
    EXPECT_EQ("40"_q, textOf(ColumnClaimTotal(form, 0)));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { ColumnClaimTotal(form, 1); }));
    EXPECT_EQ("01:00"_q, ColumnTimeTotal(form, 1)); // needs no price
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { ScheduleTotal(form); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { ProfitCostsTotal(form); }));
    EXPECT_EQ("0"_q, textOf(AdvocacyTotal(form))); // the item is not advocacy
}

TEST_F(Totals, AnItemThatIsNotBilledStopsNothing)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "no time");
    claim.addItem(feeEarner, "01:00")->Advocacy = true;
    form.FormType = "Claim1A"_q;
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { ScheduleTotal(form); }));
    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ("50"_q, textOf(ScheduleTotal(form)));
}

TEST_F(Totals, TimeBeyondThirtyTwoBitsOfMinutesIsTheOverflowError)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "30000000:00"); // 1,800,000,000 minutes
    EXPECT_EQ("30000000:00"_q, ColumnTimeTotal(form, 0));
    claim.addItem(feeEarner, "30000000:00");
    EXPECT_EQ(Error::Overflow, errorOf([&] { ColumnTimeTotal(form, 0); }));
}

// Counsel

TEST_F(CounselTotals, AreBrokenDownFromTwoCounselOn)
{
    const auto a = form.AddCounsel();
    a->AccountNumber = "A1"_q;
    claim.addDisbursement("100", "20", true)->CounselUniqueID = a->UniqueID();
    EXPECT_EQ(QString(), CounselAccountNumberAtLine(form, 1));
    EXPECT_EQ(Money(), CounselGrossAtLine(form, 1));
    EXPECT_EQ("120"_q, textOf(CounselFeesTotal(form)));

    const auto b = form.AddCounsel();
    b->AccountNumber = "B2"_q;
    EXPECT_EQ("A1"_q, CounselAccountNumberAtLine(form, 1));
    EXPECT_EQ("120"_q, textOf(CounselGrossAtLine(form, 1)));
    EXPECT_EQ("B2"_q, CounselAccountNumberAtLine(form, 2));
    EXPECT_EQ(Money(), CounselGrossAtLine(form, 2));
    EXPECT_EQ(QString(), CounselAccountNumberAtLine(form, 3));
    EXPECT_EQ(Money(), CounselGrossAtLine(form, 3));
}

TEST_F(CounselTotals, FollowTheOrderOfTheCounsel)
{
    for (const char *number : {"A", "B", "C"})
        form.AddCounsel()->AccountNumber = QString::fromLatin1(number);
    for (int n = 1; n <= 3; ++n) {
        claim.addDisbursement("1", "0.10", true)->CounselUniqueID = form.Counsel(n)->UniqueID();
        form.Disbursement(n)->Amount = QString::number(n);
        form.Counsel(n)->OrderID = 4 - n;
    }
    EXPECT_EQ("C"_q, CounselAccountNumberAtLine(form, 1));
    EXPECT_EQ("3.1"_q, textOf(CounselGrossAtLine(form, 1)));
    EXPECT_EQ("A"_q, CounselAccountNumberAtLine(form, 3));
    EXPECT_EQ("1.1"_q, textOf(CounselGrossAtLine(form, 3)));
}

TEST_F(CounselTotals, AFeeThatNamesNobodyIsInTheTotalOnly)
{
    form.AddCounsel();
    form.AddCounsel();
    claim.addDisbursement("100", "17.50", true);
    EXPECT_EQ("100"_q, textOf(CounselFeesAmountTotal(form)));
    EXPECT_EQ("17.5"_q, textOf(CounselFeesVATTotal(form)));
    EXPECT_EQ("117.5"_q, textOf(CounselFeesTotal(form)));
    EXPECT_EQ(Money(), CounselGrossAtLine(form, 1));
    EXPECT_EQ(Money(), CounselGrossAtLine(form, 2));
}

TEST_F(CounselTotals, ADisbursementThatIsNoFeeIsNotCountedThoughItNamesACounsel)
{
    const auto a = form.AddCounsel();
    form.AddCounsel();
    claim.addDisbursement("100", "20", false)->CounselUniqueID = a->UniqueID();
    EXPECT_EQ(Money(), CounselGrossAtLine(form, 1));
    EXPECT_EQ(Money(), CounselFeesTotal(form));
}

TEST_F(CounselTotals, CountTheFlagAsItIsAndNotAsTheListsWereParted)
{
    const auto fee = claim.addDisbursement("100", "20", true);
    EXPECT_EQ("120"_q, textOf(CounselFeesTotal(form)));
    EXPECT_EQ(Money(), CounselDisbursementsAmountTotal(form));
    form.SeparateCounselAndNonCounselDisbursements();
    fee->Counsel = false;
    EXPECT_EQ(Money(), CounselFeesTotal(form));
    EXPECT_EQ("100"_q, textOf(CounselDisbursementsAmountTotal(form)));
}

TEST_F(CounselTotals, AGapInTheOrderIsTheObjectError)
{
    form.AddCounsel();
    form.AddCounsel()->OrderID = 3;
    EXPECT_EQ(QString(), CounselAccountNumberAtLine(form, 1));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { CounselAccountNumberAtLine(form, 2); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { CounselGrossAtLine(form, 2); }));
}

TEST_F(CounselTotals, TheErrorOfTheAmountComesBeforeThatOfTheVAT)
{
    const auto a = form.AddCounsel();
    form.AddCounsel();
    const auto fee = claim.addDisbursement("x", "99999999999999999999", true);
    fee->CounselUniqueID = a->UniqueID();
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CounselGrossAtLine(form, 1); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CounselFeesTotal(form); }));
    fee->Amount = "99999999999999999999"_q;
    fee->VAT = "x"_q;
    EXPECT_EQ(Error::Overflow, errorOf([&] { CounselGrossAtLine(form, 1); }));
    EXPECT_EQ(Error::Overflow, errorOf([&] { CounselFeesTotal(form); }));
}

// The Family Advocacy Scheme

TEST_F(FASTotals, AreSummedWithTheirFractions)
{
    claim.addFASItem(1, "10.00", "12.55"); // 11.255
    claim.addFASItem(3, "100.00", "12.5"); // 337.50
    EXPECT_EQ("348.755"_q, textOf(FASItemsTotal(form)));
}

TEST_F(FASTotals, AnEmptyVATIsWrittenAsZeroWhileTotalling)
{
    const auto empty = claim.addFASItem(1, "1", "");
    claim.addFASItem(1, "1", "")->VATForFAS = "2.0005"_q;
    EXPECT_EQ(QString(), empty->VATForFAS());
    EXPECT_EQ("2.0005"_q, textOf(FASVATTotal(form)));
    EXPECT_EQ("0"_q, empty->VATForFAS());
    EXPECT_TRUE(form.XMLOutput().contains("<vatforfas>0</vatforfas>"_q));
}

TEST_F(FASTotals, AVATThatIsNoNumberIsTheTypeError)
{
    claim.addFASItem(1, "1", "")->VATForFAS = " "_q;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { FASVATTotal(form); }));
}

TEST_F(FASTotals, ABlankPaymentStopsTheTotal)
{
    claim.addFASItem(1, "1", "")->SettlementFee = QString();
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { FASItemsTotal(form); }));
    EXPECT_EQ("0"_q, textOf(AdvocacyTotal(form))); // Claim1 does not ask
    form.FormType = "Claim1A"_q;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { AdvocacyTotal(form); }));
}

// Sums, and the first part that fails

TEST_F(Totals, ProfitCostsFailAsTheScheduleDoesBeforeTheCommunications)
{
    const auto group = claim.addGroup("x"); // the schedule: type error
    const auto feeEarner = claim.addFeeEarner(group);
    claim.addItem(feeEarner, "01:00");
    feeEarner->Calls = 2'000'000'000; // the communications: overflow
    claim.addFeeEarner(group)->Calls = 2'000'000'000;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { ProfitCostsTotal(form); }));
    group->HourlyRate = "40"_q;
    EXPECT_EQ(Error::Overflow, errorOf([&] { ProfitCostsTotal(form); }));
}
