// Prices that are worked out once for a whole schedule are those of the items, and fail as theirs do.

#include "costing/clsSchedulePrices.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdTimeFormatting.h"
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
        EXPECT_EQ(ColumnTimeTotal(form, column), totals.times[size_t(column)].get());
        EXPECT_EQ(ColumnClaimTotal(form, column), totals.claims[size_t(column)].get());
    }
    EXPECT_EQ(ScheduleTotal(form), totals.schedule.get());
}

/// The errors of an item's claim, of its price, and of the totals.
std::array<int, 3> errorsOf(const clsTestClaim &claim, const clsTestClaim::Item &item)
{
    clsSchedulePrices prices(claim.form);
    return {errorOf([&] { item->Claim(); }), prices.of(*item).errorOf(clsSchedulePrice::ClaimFigure),
        errorOf([&] { AllColumnTotals(claim.form, prices).schedule.get(); })};
}

/// Each figure of an item's price has the error of the item's own member, or none.
void expectSameErrors(const clsTestClaim &claim, const clsTestClaim::Item &item)
{
    using Price = clsSchedulePrice;
    clsSchedulePrices prices(claim.form);
    const Price &price = prices.of(*item);
    EXPECT_EQ(errorOf([&] { item->FeeEarnerInitials(); }), price.errorOf(Price::InitialsFigure));
    EXPECT_EQ(errorOf([&] { TimeToMinutes(item->TTime()); }), price.errorOf(Price::TimeFigure));
    EXPECT_EQ(errorOf([&] { item->TimeColumn(); }), price.errorOf(Price::ColumnFigure));
    EXPECT_EQ(errorOf([&] { item->Rate(); }), price.errorOf(Price::RateFigure));
    EXPECT_EQ(errorOf([&] { item->BasicClaim(); }), price.errorOf(Price::BasicClaimFigure));
    EXPECT_EQ(errorOf([&] { item->TotalEnhancementPercentage(); }), price.errorOf(Price::PercentageFigure));
    EXPECT_EQ(errorOf([&] { item->Claim(); }), price.errorOf(Price::ClaimFigure));
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

TEST(SchedulePrices, EachFigureFailsByItself)
{
    using Item = clsTestClaim::Item;
    const struct {
        const char *what;
        void (*spoil)(const clsTestClaim::Group &group, const Item &item);
    } rows[] = {
        {"nothing", [](const clsTestClaim::Group &, const Item &) {}},
        {"no time", [](const clsTestClaim::Group &, const Item &item) { item->TTime = QString(); }},
        {"no colon", [](const clsTestClaim::Group &, const Item &item) { item->TTime = "90"_q; }},
        {"too long", [](const clsTestClaim::Group &, const Item &item) { item->TTime = "99999999999:00"_q; }},
        {"no fee earner", [](const clsTestClaim::Group &, const Item &item) { item->FeeEarnerUniqueID = QString(); }},
        {"no group", [](const clsTestClaim::Group &, const Item &item) { item->FeeEarner()->GroupUniqueID = "ID0"_q; }},
        {"no hourly rate", [](const clsTestClaim::Group &group, const Item &) { group->HourlyRate = QString(); }},
        {"a large rate",
            [](const clsTestClaim::Group &group, const Item &) { group->HourlyRate = "900000000000000"_q; }},
        {"no enhancement", [](const clsTestClaim::Group &, const Item &item) { item->IncludeInEnhancements = true; }},
        {"no time and no enhancement",
            [](const clsTestClaim::Group &, const Item &item) {
                item->TTime = QString();
                item->IncludeInEnhancements = true;
            }},
        {"a tick that is none",
            [](const clsTestClaim::Group &, const Item &item) {
                item->XMLNode().child("travel").text().set("perhaps");
            }},
        {"a group's tick that is none",
            [](const clsTestClaim::Group &group, const Item &) { group->XMLNode().child("enhance").text().set("x"); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        clsTestClaim claim;
        const auto group = claim.addGroup();
        const Item item = claim.addItem(claim.addFeeEarner(group), "12:00");
        row.spoil(group, item);
        expectSameErrors(claim, item);
    }
}

TEST(SchedulePrices, AnErrorOfAColumnLeavesTheOtherColumnsAlone)
{
    clsTestClaim claim;
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "01:00", "ACT"); // 40
    claim.addItem(feeEarner, "02:00", "DOT")->FeeEarnerUniqueID = "ID0"_q;
    claim.addItem(feeEarner, "", "HIN");
    claim.addItem(feeEarner, "03:00", "ACT"); // 120
    clsSchedulePrices prices(claim.form);
    const clsColumnTotals totals = AllColumnTotals(claim.form, prices);
    EXPECT_EQ("04:00"_q, totals.times[0].get());
    EXPECT_EQ("160"_q, textOf(totals.claims[0].get()));
    EXPECT_EQ("02:00"_q, totals.times[1].get()); // needs no price
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { totals.claims[1].get(); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { totals.times[2].get(); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { totals.claims[2].get(); }));
    EXPECT_EQ("00:00"_q, totals.times[3].get());
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { totals.schedule.get(); })) << "that of its first failing part";
    EXPECT_EQ("Schedule item 2 names a fee earner that no longer exists"_q, totals.schedule.error->cause());
    EXPECT_EQ("Schedule item 3 has no time"_q, totals.times[2].error->cause());
}

TEST(SchedulePrices, WithoutKnowingTheColumnOfAnItemNoTotalGoesOn)
{
    clsTestClaim claim;
    const auto feeEarner = claim.addFeeEarner(claim.addGroup());
    claim.addItem(feeEarner, "", "ACT");
    claim.addItem(feeEarner, "01:00", "DOT")->XMLNode().child("waiting").text().set("perhaps");
    clsSchedulePrices prices(claim.form);
    const clsColumnTotals totals = AllColumnTotals(claim.form, prices);
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column) {
        EXPECT_EQ(errorOf([&] { ColumnTimeTotal(claim.form, column); }),
            errorOf([&] { totals.times[size_t(column)].get(); }));
        EXPECT_EQ(errorOf([&] { ColumnClaimTotal(claim.form, column); }),
            errorOf([&] { totals.claims[size_t(column)].get(); }));
    }
    EXPECT_EQ(Error::SubscriptOutOfRange, totals.times[0].error->number()) << "the item before has failed first";
    EXPECT_EQ(Error::TypeMismatch, totals.times[1].error->number());
    EXPECT_EQ("Schedule item 2: the tick Waiting holds \"perhaps\", which is neither True nor False"_q,
        totals.times[1].error->cause());
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
    EXPECT_EQ("120"_q, textOf(AllColumnTotals(claim.form, prices).schedule.get()));
}
