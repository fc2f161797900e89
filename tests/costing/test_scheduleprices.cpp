// Prices that are worked out once for a whole schedule are those of the items, and fail as theirs do.

#include "costing/clsSchedulePrices.h"
#include "costing/mdGetColumnTotals.h"
#include "tests/costing/clsTestClaim.h"
#include "tests/support/mdTestPaths.h"

namespace {

using Error = clsRunTimeError;

void expectSame(const clsZR3Form &form)
{
    clsSchedulePrices prices(form);
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        for (int times = 0; times < 2; ++times) {
            const clsSchedulePrice &price = prices.of(*item);
            EXPECT_EQ(item->FeeEarnerInitials(), price.FeeEarnerInitials);
            EXPECT_EQ(item->TTime(), price.TTime);
            EXPECT_EQ(item->TimeColumn(), price.TimeColumn);
            EXPECT_EQ(item->Rate(), price.Rate);
            EXPECT_EQ(item->BasicClaim(), price.BasicClaim);
            EXPECT_EQ(item->TotalEnhancementPercentage(), price.TotalEnhancementPercentage);
            EXPECT_EQ(item->Claim(), price.Claim);
        }
    const clsColumnTotals totals = AllColumnTotals(form, prices);
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column) {
        EXPECT_EQ(ColumnTimeTotal(form, column), totals.times[size_t(column)]);
        EXPECT_EQ(ColumnClaimTotal(form, column), totals.claims[size_t(column)]);
    }
    EXPECT_EQ(ScheduleTotal(form), totals.schedule);
}

/// The errors of an item's own figures, of its price, and of the totals.
std::array<int, 3> errorsOf(const clsTestClaim &claim, const clsTestClaim::Item &item)
{
    clsSchedulePrices prices(claim.form);
    return {errorOf([&] { item->Claim(); }), errorOf([&] { prices.of(*item); }),
        errorOf([&] { AllColumnTotals(claim.form, prices); })};
}

} // namespace

TEST(SchedulePrices, AreThoseOfTheItems)
{
    for (const char *sample : {"housing-typical", "many-sheets", "advocacy-only", "care-typical", "many-sheets-1a"}) {
        SCOPED_TRACE(sample);
        clsTestClaim claim;
        ASSERT_TRUE(claim.form.LoadXML(mdSamplePath(QString::fromLatin1(sample) + QStringLiteral(".zr3"))));
        ASSERT_FALSE(claim.form.ScheduleOfTimeItemsCollection().empty());
        expectSame(claim.form);
    }
}

TEST(SchedulePrices, OfAnEmptyScheduleAreNothing)
{
    const clsTestClaim claim;
    expectSame(claim.form);
}

TEST(SchedulePrices, ReadARateOnlyWhenAnItemUsesIt)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    const auto item = claim.addItem(claim.addFeeEarner(group), "01:00");
    group->CounselRate = "none"_q;
    group->EnhancementRate = "none"_q;
    expectSame(claim.form);
    item->Counsel = true;
    EXPECT_EQ(
        (std::array<int, 3> {Error::TypeMismatch, Error::TypeMismatch, Error::TypeMismatch}), errorsOf(claim, item));
}

TEST(SchedulePrices, FailAsTheItemsDo)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    const auto feeEarner = claim.addFeeEarner(group);
    const auto item = claim.addItem(feeEarner, "01:00");
    const auto all = [](int error) { return std::array<int, 3> {error, error, error}; };
    EXPECT_EQ(all(0), errorsOf(claim, item));
    item->TTime = QString();
    EXPECT_EQ(all(Error::SubscriptOutOfRange), errorsOf(claim, item));
    item->TTime = "01:00"_q;
    item->IncludeInEnhancements = true; // and names none
    EXPECT_EQ(all(Error::ObjectNotSet), errorsOf(claim, item));
    item->IncludeInEnhancements = false;
    group->HourlyRate = QString();
    EXPECT_EQ(all(Error::TypeMismatch), errorsOf(claim, item));
    group->HourlyRate = "40.00"_q;
    feeEarner->GroupUniqueID = "ID0"_q;
    EXPECT_EQ(all(Error::ObjectNotSet), errorsOf(claim, item));
    feeEarner->GroupUniqueID = group->UniqueID();
    item->FeeEarnerUniqueID = QString();
    EXPECT_EQ(all(Error::ObjectNotSet), errorsOf(claim, item));
}

TEST(SchedulePrices, OfAnItemThatIsNoLongerInTheClaim)
{
    clsTestClaim claim;
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    const auto gone = claim.addItem(feeEarner, "01:00");
    claim.addItem(feeEarner, "03:00");
    claim.form.DeleteScheduleOfTimeItem(1);
    clsSchedulePrices prices(claim.form);
    EXPECT_EQ("40"_q, textOf(prices.of(*gone).Claim));
    EXPECT_EQ("120"_q, textOf(prices.of(*claim.form.ScheduleOfTimeItem(1)).Claim));
    EXPECT_EQ("120"_q, textOf(AllColumnTotals(claim.form, prices).schedule));
}
