// The items of the bill and their prices.

#include "formdata/mdScheduleOfTimeCodesCollection.h"
#include "tests/formdata/clsClaimTest.h"

namespace {

using Error = clsRunTimeError;

using ScheduleItem = clsClaimTest;
using FeeEarners = clsClaimTest;
using FASItem = clsClaimTest;

} // namespace

// Fee earners and their groups

TEST_F(FeeEarners, AGroupCollectsItsOwnInTheOrderOfTheList)
{
    const auto a = claim.addGroup();
    const auto b = claim.addGroup();
    const auto first = claim.addFeeEarner(a, "X");
    claim.addFeeEarner(b, "Y");
    const auto third = claim.addFeeEarner(a, "Z");
    first->OrderID = 3; // the order on the screen has no effect
    third->OrderID = 1;
    ASSERT_EQ(2u, a->FeeEarnersCollection().size());
    EXPECT_EQ(first, a->FeeEarnersCollection()[0]);
    EXPECT_EQ(third, a->FeeEarnersCollection()[1]);
    third->GroupUniqueID = b->UniqueID();
    EXPECT_EQ(1u, a->FeeEarnersCollection().size());
    EXPECT_EQ(2u, b->FeeEarnersCollection().size());
}

TEST_F(FeeEarners, AGroupSumsTheCounts)
{
    const auto group = claim.addGroup();
    EXPECT_EQ(0, group->Calls());
    const auto a = claim.addFeeEarner(group);
    const auto b = claim.addFeeEarner(group);
    claim.addFeeEarner(claim.addGroup())->Calls = 1000;
    a->Calls = 1;
    b->Calls = 2;
    a->LettersIn = 10;
    b->LettersIn = 20;
    a->LettersOut = 100;
    b->LettersOut = 200;
    EXPECT_EQ(3, group->Calls());
    EXPECT_EQ(30, group->LettersIn());
    EXPECT_EQ(300, group->LettersOut());
}

TEST_F(FeeEarners, ASumBeyondThirtyTwoBitsIsTheOverflowError)
{
    const auto group = claim.addGroup();
    for (int i = 0; i < 2; ++i) {
        const auto feeEarner = claim.addFeeEarner(group);
        feeEarner->Calls = 2'000'000'000;
        feeEarner->LettersIn = -2'000'000'000;
        feeEarner->LettersOut = 1'000'000'000;
    }
    EXPECT_EQ(Error::Overflow, errorOf([&] { group->Calls(); }));
    EXPECT_EQ(Error::Overflow, errorOf([&] { group->LettersIn(); }));
    EXPECT_EQ(2'000'000'000, group->LettersOut());
}

TEST_F(FeeEarners, AFeeEarnerFindsItsGroup)
{
    const auto group = claim.addGroup();
    group->Reference = "P"_q;
    const auto feeEarner = claim.addFeeEarner(group);
    EXPECT_EQ(group, feeEarner->Group());
    EXPECT_EQ("P"_q, feeEarner->GroupReference());
    feeEarner->GroupUniqueID = "ID99"_q;
    EXPECT_FALSE(feeEarner->Group());
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { feeEarner->GroupReference(); }));
}

// The schedule of time

TEST_F(ScheduleItem, TheColumnByTheFirstRuleThatHolds)
{
    struct Row {
        bool travel;
        bool waiting;
        const char *code;
        int column;
    };
    const Row rows[] = {
        {false, false, "ACT", 0},
        {false, false, "DOT", 1},
        {false, false, "ROP", 1},
        {false, false, "RES", 1},
        {false, false, "OOT", 1},
        {false, false, "HIN", 2},
        {false, false, "", 0},
        {false, false, "dot", 0},
        {false, false, " DOT", 0},
        {false, false, "D", 1},
        {true, false, "HIN", 3},
        {false, true, "DOT", 4},
        {true, true, "ACT", 3},
        {false, true, "", 4},
    };
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    for (const Row &row : rows) {
        const auto item = claim.addItem(feeEarner, "01:00", row.code);
        item->Travel = row.travel;
        item->Waiting = row.waiting;
        EXPECT_EQ(row.column, item->TimeColumn()) << row.code << row.travel << row.waiting;
    }
}

TEST_F(ScheduleItem, TheColumnOfEachCode)
{
    // By their first letters: 9 of A, 12 of D, 4 of H, 1 of O, 6 of R.
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    int count[5] = {};
    for (const QString &code : mdScheduleOfTimeCodesCollection()) {
        const auto item = claim.addItem(feeEarner, "01:00");
        item->Code = code;
        ++count[item->TimeColumn()];
    }
    EXPECT_EQ(9, count[0]);
    EXPECT_EQ(19, count[1]);
    EXPECT_EQ(4, count[2]);
}

TEST_F(ScheduleItem, ALaterRuleOfTheRateOverridesAnEarlierOne)
{
    struct Row {
        bool advocacy;
        bool counsel;
        bool travel;
        bool waiting;
        bool useHourlyRate;
        const char *rate;
    };
    // Hourly 40, advocacy 50, counsel 30, travel and waiting 20.
    const Row rows[] = {
        {false, false, false, false, false, "40"},
        {true, false, false, false, false, "50"},
        {false, true, false, false, false, "30"},
        {true, true, false, false, false, "30"},
        {false, false, true, false, false, "20"},
        {false, false, false, true, false, "20"},
        {true, false, true, false, false, "20"},
        {true, false, false, true, false, "20"},
        {false, true, true, false, false, "20"},
        {true, true, true, true, false, "20"},
        {true, false, false, false, true, "40"},
        {true, true, true, true, true, "40"},
        {false, false, true, false, true, "40"},
        {false, false, false, false, true, "40"},
    };
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    for (const Row &row : rows) {
        const auto item = claim.addItem(feeEarner, "01:00");
        item->Advocacy = row.advocacy;
        item->Counsel = row.counsel;
        item->Travel = row.travel;
        item->Waiting = row.waiting;
        item->UseHourlyRate = row.useHourlyRate;
        EXPECT_EQ(QString::fromLatin1(row.rate), textOf(item->Rate()))
            << row.advocacy << row.counsel << row.travel << row.waiting << row.useHourlyRate;
    }
}

TEST_F(ScheduleItem, PricesTheWorkedExample)
{
    // 90 minutes are 1.5 hours, at 47.25 that is 70.875, so 70.88; 50 per cent of it is 35.44; together 106.32.
    const auto group = claim.addGroup("47.25");
    group->Enhance = true;
    group->EnhancementRate = "50.00"_q;
    const auto item = claim.addItem(claim.addFeeEarner(group), "01:30");
    EXPECT_EQ("47.25"_q, textOf(item->Rate()));
    EXPECT_EQ("70.88"_q, textOf(item->BasicClaim()));
    EXPECT_EQ("50"_q, textOf(item->TotalEnhancementPercentage()));
    EXPECT_EQ("106.32"_q, textOf(item->Claim()));
}

TEST_F(ScheduleItem, NoTimeClaimsNothing)
{
    const auto item = claim.addItem(claim.addFeeEarner(claim.addGroup()), "00:00");
    EXPECT_EQ("0"_q, textOf(item->BasicClaim()));
    EXPECT_EQ("0"_q, textOf(item->Claim()));
}

TEST_F(ScheduleItem, EnhancementsAddAndDoNotCompound)
{
    // 100.00 and 60 per cent is 160.00; compounded, 50 and then 10 would give 165.00.
    const auto group = claim.addGroup("100.00");
    group->Enhance = true;
    group->EnhancementRate = "50"_q;
    const auto item = claim.addItem(claim.addFeeEarner(group), "01:00");
    item->EnhancementUniqueID = claim.addEnhancement("10")->UniqueID();
    EXPECT_EQ("50"_q, textOf(item->TotalEnhancementPercentage())); // named, but not included
    item->IncludeInEnhancements = true;
    EXPECT_EQ("60"_q, textOf(item->TotalEnhancementPercentage()));
    EXPECT_EQ("160"_q, textOf(item->Claim()));
    group->Enhance = false;
    EXPECT_EQ("10"_q, textOf(item->TotalEnhancementPercentage()));
    EXPECT_EQ("110"_q, textOf(item->Claim()));
}

TEST_F(ScheduleItem, IsRoundedOnceOnTheSum)
{
    // 10 minutes at 100.00 is 16.67; half of that is 8.335; the sum 25.005 rounds away from zero.
    const auto group = claim.addGroup("100.00");
    group->Enhance = true;
    group->EnhancementRate = "50"_q;
    const auto item = claim.addItem(claim.addFeeEarner(group), "00:10");
    EXPECT_EQ("16.67"_q, textOf(item->BasicClaim()));
    EXPECT_EQ("25.01"_q, textOf(item->Claim()));
}

TEST_F(ScheduleItem, FractionsOfAPennyInARateAreKeptUntilThePrice)
{
    // 20 hours at 10.0025 is 200.05; a rate rounded to the penny would give 200.00.
    const auto item = claim.addItem(claim.addFeeEarner(claim.addGroup("10.0025")), "20:00");
    EXPECT_EQ("10.0025"_q, textOf(item->Rate()));
    EXPECT_EQ("200.05"_q, textOf(item->BasicClaim()));
    // A percentage with decimals: 12.345 per cent of 200.05 is 24.6962 (24.69617), together 224.7462.
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = claim.addEnhancement("12.345")->UniqueID();
    EXPECT_EQ("224.75"_q, textOf(item->Claim()));
}

TEST_F(ScheduleItem, AChangeOfARateRepricesWithoutTouchingTheItem)
{
    const auto group = claim.addGroup("40.00");
    const auto item = claim.addItem(claim.addFeeEarner(group), "02:00");
    const auto enhancement = claim.addEnhancement("25");
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = enhancement->UniqueID();
    EXPECT_EQ("100"_q, textOf(item->Claim())); // 80 plus 25 per cent
    const QString before = item->XMLOutput();
    group->HourlyRate = "60.00"_q;
    EXPECT_EQ("60"_q, textOf(item->Rate()));
    EXPECT_EQ("120"_q, textOf(item->BasicClaim()));
    EXPECT_EQ("150"_q, textOf(item->Claim()));
    enhancement->Rate = "50"_q;
    EXPECT_EQ("180"_q, textOf(item->Claim()));
    EXPECT_EQ(before, item->XMLOutput());
}

TEST_F(ScheduleItem, KnowsItsFeeEarner)
{
    const auto group = claim.addGroup();
    const auto feeEarner = claim.addFeeEarner(group, "JS");
    const auto item = claim.addItem(feeEarner, "01:00");
    EXPECT_EQ(feeEarner, item->FeeEarner());
    EXPECT_EQ(group, item->FeeEarnerGroup());
    EXPECT_EQ("JS"_q, item->FeeEarnerReference());
    EXPECT_EQ("JS"_q, item->FeeEarnerInitials());
}

TEST_F(ScheduleItem, WithoutAFeeEarnerOrAGroupThereIsTheObjectError)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    const auto item = claim.addItem(feeEarner, "01:00");
    feeEarner->GroupUniqueID = QString();
    EXPECT_EQ("AB"_q, item->FeeEarnerReference()); // needs no group
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->Rate(); }));
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->BasicClaim(); }));
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->TotalEnhancementPercentage(); }));
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->Claim(); }));
        item->FeeEarnerUniqueID = "ID99"_q;
    }
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->FeeEarnerReference(); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->FeeEarnerGroup(); }));
    EXPECT_EQ(0, item->TimeColumn()); // needs no fee earner
}

TEST_F(ScheduleItem, ABlankRateIsTheTypeErrorWhereItIsRead)
{
    const auto group = claim.addGroup();
    const auto item = claim.addItem(claim.addFeeEarner(group), "01:00");
    group->AdvocacyRate = QString();
    EXPECT_EQ("40"_q, textOf(item->Rate())); // not read
    item->Advocacy = true;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->Rate(); }));
    group->AdvocacyRate = "x"_q;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->Claim(); }));
    // Every item starts from the hourly rate.
    group->AdvocacyRate = "50"_q;
    group->HourlyRate = QString();
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->Rate(); }));
}

TEST_F(ScheduleItem, ABlankOrMissingEnhancementIsAnError)
{
    const auto group = claim.addGroup();
    const auto item = claim.addItem(claim.addFeeEarner(group), "01:00");
    item->IncludeInEnhancements = true;
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->TotalEnhancementPercentage(); }));
    const auto enhancement = claim.addEnhancement("");
    item->EnhancementUniqueID = enhancement->UniqueID();
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->TotalEnhancementPercentage(); }));
    enhancement->Rate = "0.00"_q;
    EXPECT_EQ("0"_q, textOf(item->TotalEnhancementPercentage()));
    EXPECT_EQ("40"_q, textOf(item->Claim()));
    group->EnhancementRate = QString();
    EXPECT_EQ("40"_q, textOf(item->Claim())); // not read
    group->Enhance = true;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->Claim(); }));
}

TEST_F(ScheduleItem, ATimeWithoutAColonIsTheSubscriptError)
{
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { claim.addItem(feeEarner, "")->BasicClaim(); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { claim.addItem(feeEarner, "90")->Claim(); }));
}

TEST_F(ScheduleItem, TheDateSorts)
{
    const std::pair<const char *, const char *> rows[] = {
        {"31/12/29", "20291231"},
        {"01/02/06", "20060201"},
        {"28/02/1999", "19990228"},
        {"", ""},
        // A year of more digits, or before the first, is a typing error and would be sorted wrongly.
        {"01/02/20240", "01/02/20240"},
        {"01/02/-50", "01/02/-50"},
    };
    for (const auto &[date, serial] : rows) {
        const auto item = form.AddScheduleOfTimeItem();
        item->dDate = QString::fromLatin1(date);
        EXPECT_EQ(QString::fromLatin1(serial), item->DDateSerial());
        const auto hearing = form.AddFASItem();
        hearing->dDate = QString::fromLatin1(date);
        EXPECT_EQ(QString::fromLatin1(serial), hearing->DDateSerial());
    }
}

// The Family Advocacy Scheme

TEST_F(FASItem, PricesTheWorkedExamples)
{
    // 3 units at 100.00, plus 12.5 per cent.
    EXPECT_EQ("337.5"_q, textOf(claim.addFASItem(3, "100.00", "12.5")->Total()));
    // 12.55 per cent of 10.00 is 1.255: the fraction of a penny is kept.
    EXPECT_EQ("11.255"_q, textOf(claim.addFASItem(1, "10.00", "12.55")->Total()));
}

TEST_F(FASItem, AddsTheFixedPaymentsWithTheirFractions)
{
    const auto item = claim.addFASItem(2, "86.725", "25");
    item->CourtBundlePayment = "1,159.00"_q;
    item->SettlementFee = "0.0001"_q;
    item->ExceptionalTravel = "32.40"_q;
    item->VATForFAS = "999"_q; // not part of the total
    EXPECT_EQ("173.45"_q, textOf(item->UnitPayment()));
    EXPECT_EQ("43.3625"_q, textOf(item->BoltOn()));
    // 173.45 + 43.3625 + 1159 + 0.0001 + 32.40
    EXPECT_EQ("1408.2126"_q, textOf(item->Total()));
}

TEST_F(FASItem, AnEmptyBoltOnIsNone)
{
    EXPECT_EQ("100"_q, textOf(claim.addFASItem(1, "100.00", "")->Total()));
}

TEST_F(FASItem, AnEmptyAmountIsTheTypeError)
{
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { claim.addFASItem(1, "", "0")->Total(); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.AddFASItem()->Total(); })); // new from its template
    for (int field = 0; field < 3; ++field) {
        const auto item = claim.addFASItem(1, "1", "0");
        if (field == 0)
            item->CourtBundlePayment = QString();
        else if (field == 1)
            item->SettlementFee = QString();
        else
            item->ExceptionalTravel = QString();
        EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->Total(); })) << field;
    }
}

TEST_F(FASItem, ItsErrorsComeInTheOrderOfItsParts)
{
    const auto item = claim.addFASItem(1, "1", "0");
    item->CourtBundlePayment = "99999999999999999999"_q; // overflow
    item->SettlementFee = "x"_q; // type mismatch
    EXPECT_EQ(Error::Overflow, errorOf([&] { item->Total(); }));
    item->CourtBundlePayment = "x"_q;
    item->SettlementFee = "99999999999999999999"_q;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { item->Total(); }));
    item->RateForUnits = "99999999999999999999"_q;
    EXPECT_EQ(Error::Overflow, errorOf([&] { item->Total(); }));
}
