// Prices computed once for a whole schedule equal those of the items, and fail with the same errors.

#include "base/mdTimeFormatting.h"
#include "costing/mdGetColumnTotals.h"
#include "formdata/clsSchedulePrices.h"
#include "tests/formdata/clsTestClaim.h"
#include "tests/support/mdTestPaths.h"

namespace {

using Error = clsRunTimeError;

/// The totals computed item by item.
struct clsSlowTotals {
    explicit clsSlowTotals(const clsZR3Form &claim)
        : form(claim)
    { }

    template <class Visit> void forItemsOf(int column, Visit visit) const
    {
        for (const auto &item : form.ScheduleOfTimeItemsCollection())
            if (form.IsOnBill(*item) && item->TimeColumn() == column)
                visit(*item);
    }
    QString time(int column) const
    {
        int minutes = 0;
        forItemsOf(column, [&](const clsZR3ScheduleOfTimeItem &item) { minutes += TimeToMinutes(item.TTime()); });
        return MinutesToTime(minutes);
    }
    Money claims(int column) const
    {
        Money total;
        forItemsOf(column, [&](const clsZR3ScheduleOfTimeItem &item) { total += item.Claim(); });
        return RoundMoney2(total);
    }
    Money schedule() const
    {
        Money total;
        for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
            total += claims(column);
        return total;
    }
    Money advocacy() const
    {
        Money total;
        for (const auto &item : form.ScheduleOfTimeItemsCollection())
            if (item->Advocacy())
                total += item->Claim();
        return RoundMoney2(total);
    }

    const clsZR3Form &form;
};

/// Expects each total, from the claim and from one bill for all of them, to equal that of the items or fail like it.
void expectSameTotals(const clsZR3Form &form)
{
    const clsSlowTotals slow(form);
    const clsBill bill(form);
    const auto expectSame = [](auto expected, auto ofClaim, auto ofBill) {
        const int error = errorOf([&] { expected(); });
        EXPECT_EQ(error, errorOf([&] { ofClaim(); }));
        EXPECT_EQ(error, errorOf([&] { ofBill(); }));
        EXPECT_EQ(error, errorOf([&] { ofBill(); })); // a second time
        if (error == 0) {
            EXPECT_EQ(expected(), ofClaim());
            EXPECT_EQ(expected(), ofBill());
        }
    };
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column) {
        expectSame([&] { return slow.time(column); }, [&] { return ColumnTimeTotal(form, column); },
            [&] { return ColumnTimeTotal(bill, column); });
        expectSame([&] { return slow.claims(column); }, [&] { return ColumnClaimTotal(form, column); },
            [&] { return ColumnClaimTotal(bill, column); });
    }
    expectSame(
        [&] { return slow.schedule(); }, [&] { return ScheduleTotal(form); }, [&] { return ScheduleTotal(bill); });
    expectSame([&] { return slow.advocacy(); }, [&] { return bill.advocacy().get(); },
        [&] { return RoundMoney2(bill.advocacy().get()); });
}

void expectSame(const clsZR3Form &form)
{
    clsSchedulePrices prices(form);
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        for (int times = 0; times < 2; ++times) {
            const clsSchedulePrice &price = prices.of(*item);
            EXPECT_EQ(item->FeeEarnerInitials(), *price.FeeEarnerInitials);
            EXPECT_EQ(TimeToMinutes(item->TTime()), price.Minutes);
            EXPECT_EQ(item->TimeColumn(), price.TimeColumn);
            EXPECT_EQ(item->Rate(), price.Rate);
            EXPECT_EQ(item->BasicClaim(), price.BasicClaim);
            EXPECT_EQ(item->TotalEnhancementPercentage(), price.TotalEnhancementPercentage);
            EXPECT_EQ(item->Claim(), price.Claim);
        }
    expectSameTotals(form);
}

/// The errors of an item's claim, of its price, and of the totals.
std::array<int, 3> errorsOf(const clsTestClaim &claim, const clsTestClaim::Item &item)
{
    clsSchedulePrices prices(claim.form);
    return {errorOf([&] { item->Claim(); }), prices.of(*item).errorOf(clsSchedulePrice::ClaimFigure),
        errorOf([&] { AllColumnTotals(claim.form, prices).schedule.get(); })};
}

/// Expects each figure of an item's price to have the same error as the item's own member, or none.
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
    item->IncludeInEnhancements = true; // without naming one
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

TEST(Bill, FailsWhereTheItemsFailAndNowhereElse)
{
    // Each of three items in three columns fails in every way, in each order of the items.
    clsTestClaim claim;
    const auto group = claim.addGroup();
    const auto broken = claim.addGroup("none");
    const auto feeEarner = claim.addFeeEarner(group);
    const auto unpriced = claim.addFeeEarner(broken);
    const auto item = [&](int n) { return claim.form.ScheduleOfTimeItem(n); };
    claim.addItem(feeEarner, "01:00", "ACT");
    claim.addItem(feeEarner, "02:00", "DPL")->Advocacy = true;
    claim.addItem(feeEarner, "03:00", "HIN");
    constexpr int Ways = 7;
    const auto spoil = [&](int n, int way) {
        item(n)->FeeEarnerUniqueID = way == 1 ? "ID0"_q : way == 2 ? unpriced->UniqueID() : feeEarner->UniqueID();
        item(n)->TTime = way == 3 ? QString() : way == 4 ? "2000000000:00"_q : "01:00"_q;
        item(n)->IncludeInEnhancements = way == 5;
        item(n)->field(u"Travel")->setContent(way == 6 ? "perhaps" : "False");
        item(n)->field(u"Advocacy")->setContent(way == 7 ? "perhaps" : n == 2 ? "True" : "False");
    };
    for (const char16_t *type : {u"Claim1", u"Claim1A"})
        for (const char *excluded : {"False", "True", "perhaps"}) {
            claim.form.FormType = QString::fromUtf16(type);
            claim.form.field(u"ExcludeNonAdvocacy")->setContent(excluded);
            for (int ways = 0; ways < (Ways + 1) * (Ways + 1) * (Ways + 1); ++ways) {
                SCOPED_TRACE(
                    testing::Message() << qPrintable(QString::fromUtf16(type)) << ' ' << excluded << ' ' << ways);
                spoil(1, ways % (Ways + 1));
                spoil(2, ways / (Ways + 1) % (Ways + 1));
                spoil(3, ways / (Ways + 1) / (Ways + 1));
                expectSameTotals(claim.form);
                if (testing::Test::HasFailure())
                    return;
            }
        }
}

TEST(Bill, StaysAsItWasUntilItIsToldToForget)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    claim.addItem(claim.addFeeEarner(group), "01:00");
    clsBill bill(claim.form);
    EXPECT_EQ("40"_q, textOf(ScheduleTotal(bill)));
    group->HourlyRate = "50.00"_q;
    EXPECT_EQ("50"_q, textOf(ScheduleTotal(claim.form)));
    EXPECT_EQ("40"_q, textOf(ScheduleTotal(bill)));
    bill.forget();
    EXPECT_EQ("50"_q, textOf(ScheduleTotal(bill)));
}
