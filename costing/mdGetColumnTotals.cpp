#include "costing/mdGetColumnTotals.h"

#include "costing/clsSchedulePrices.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetFASTotals.h"
#include "costing/mdTimeFormatting.h"
#include "formdata/clsOnBill.h"
#include "shell/mdNumberText.h"

namespace {

/// Visits the items of a column that stand on the bill.
template <class Visit> void forBilledItems(const clsZR3Form &form, int column, Visit visit)
{
    clsOnBill isOnBill(form);
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        if (isOnBill(*item) && item->TimeColumn() == column)
            visit(*item);
}

void addMinutes(int &total, int minutes)
{
    if (__builtin_add_overflow(total, minutes, &total))
        throw clsRunTimeError(clsRunTimeError::Overflow);
}

/// Adds up what `ofColumn` gives for each column. The road by the text and a double is part of the rule.
template <class OfColumn> Money sumOfColumns(OfColumn ofColumn)
{
    Money total;
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
        total = total + MoneyFromDouble(TextValue(MoneyToText(ofColumn(column))));
    return RoundMoney2(total);
}

/// Adds up the figures of all columns in one walk. A column keeps the first error that it meets.
class clsTotalling {
public:
    void add(const clsZR3Form &form, const clsZR3ScheduleOfTimeItem &item, const clsSchedulePrice &price)
    {
        using Price = clsSchedulePrice;
        if (price.errorOf(Price::ColumnFigure))
            mdExplained(form, item, [&] { item.TimeColumn(); });
        const auto column = size_t(price.TimeColumn);
        attempt(m_totals.times[column], [&] {
            if (price.errorOf(Price::TimeFigure))
                mdExplained(form, item, [&] { TimeToMinutes(price.TTime); });
            addMinutes(m_minutes[column], price.Minutes);
        });
        attempt(m_totals.claims[column], [&] {
            if (price.errorOf(Price::ClaimFigure))
                mdExplained(form, item, [&] { item.Claim(); });
            m_totals.claims[column].value += price.Claim;
        });
    }
    /// Where it isn't known whether an item counts, or in which column, no total can go on.
    void failAll(const clsRunTimeError &error)
    {
        for (auto &time : m_totals.times)
            attempt(time, [&] { throw error; });
        for (auto &claim : m_totals.claims)
            attempt(claim, [&] { throw error; });
    }
    bool firstColumnFailed() const { return m_totals.claims.front().error.has_value(); }
    const clsColumnTotals &totals()
    {
        for (size_t column = 0; column < m_minutes.size(); ++column) {
            m_totals.times[column].value = MinutesToTime(m_minutes[column]);
            clsFigure<Money> &claim = m_totals.claims[column];
            attempt(claim, [&] { claim.value = RoundMoney2(claim.value); });
        }
        attempt(m_totals.schedule, [this] {
            m_totals.schedule.value
                = sumOfColumns([this](int column) { return m_totals.claims[size_t(column)].get(); });
        });
        return m_totals;
    }

private:
    /// Goes on with a figure unless it has failed before.
    template <class Value, class Compute> static void attempt(clsFigure<Value> &figure, Compute compute)
    {
        if (figure.error)
            return;
        try {
            compute();
        } catch (const clsRunTimeError &error) {
            figure.error = error.because(QStringLiteral("The sum is too large"));
        }
    }

    std::array<int, clsZR3ScheduleOfTimeItem::Columns> m_minutes {};
    clsColumnTotals m_totals;
};

/// The totals of all items, or of those up to where it is enough.
template <class Enough> clsColumnTotals totalsOf(const clsZR3Form &form, clsSchedulePrices &prices, Enough enough)
{
    clsTotalling totalling;
    clsOnBill isOnBill(form);
    try {
        for (const auto &item : form.ScheduleOfTimeItemsCollection()) {
            if (isOnBill(*item))
                totalling.add(form, *item, prices.of(*item));
            if (enough(totalling))
                break;
        }
    } catch (const clsRunTimeError &error) {
        totalling.failAll(error);
    }
    return totalling.totals();
}

} // namespace

QString ColumnTimeTotal(const clsZR3Form &form, int column)
{
    int minutes = 0;
    forBilledItems(form, column, [&](const clsZR3ScheduleOfTimeItem &item) {
        addMinutes(minutes, mdExplained(form, item, [&] { return TimeToMinutes(item.TTime()); }));
    });
    return MinutesToTime(minutes);
}

Money ColumnClaimTotal(const clsZR3Form &form, int column)
{
    Money total;
    forBilledItems(form, column, [&](const clsZR3ScheduleOfTimeItem &item) {
        total = total + mdExplained(form, item, [&] { return item.Claim(); });
    });
    return RoundMoney2(total);
}

Money ScheduleTotal(const clsZR3Form &form)
{
    clsSchedulePrices prices(form);
    // The error of a sum is that of its first part, so that nothing behind a failure in the first column matters.
    return totalsOf(form, prices, [](const clsTotalling &totalling) {
        return totalling.firstColumnFailed();
    }).schedule.get();
}

clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices)
{
    return totalsOf(form, prices, [](const clsTotalling &) { return false; });
}

Money AdvocacyTotal(const clsZR3Form &form)
{
    if (form.FormType() != QLatin1String("Claim1") && !form.FASItemsCollection().empty())
        return RoundMoney2(FASItemsTotal(form));
    Money total;
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        if (item->Advocacy())
            total = total + mdExplained(form, *item, [&] { return item->Claim(); });
    return RoundMoney2(total);
}
