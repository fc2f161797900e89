#include "costing/mdGetColumnTotals.h"

#include "base/mdNumberText.h"
#include "base/mdTimeFormatting.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetFASTotals.h"
#include "formdata/clsBillFilter.h"
#include "formdata/clsSchedulePrices.h"

namespace {

void addMinutes(int &total, int minutes)
{
    if (__builtin_add_overflow(total, minutes, &total))
        throw clsRunTimeError(clsRunTimeError::Overflow);
}

/// Adds up the results of `ofColumn`. The conversion through text and double is required behaviour.
template <class OfColumn> Money sumOfColumns(OfColumn ofColumn)
{
    Money total;
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
        total = total + MoneyFromDouble(TextValue(MoneyToText(ofColumn(column))));
    return RoundMoney2(total);
}

/// The claim of a priced item; if that failed, raises the item's own error.
Money claimOf(const clsZR3Form &form, const clsZR3ScheduleOfTimeItem &item, const clsSchedulePrice &price)
{
    if (price.errorOf(clsSchedulePrice::ClaimFigure))
        mdExplained(form, item, [&] { item.Claim(); });
    return price.Claim;
}

/// Adds up the figures of all columns in one pass. A column keeps its first error.
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
                mdExplained(form, item, [&] { TimeToMinutes(item.TTime()); });
            addMinutes(m_minutes[column], price.Minutes);
        });
        attempt(m_totals.claims[column], [&] { m_totals.claims[column].value += claimOf(form, item, price); });
    }
    /// If it is undecided whether an item counts, or in which column, all totals fail.
    void failAll(const clsRunTimeError &error)
    {
        for (auto &time : m_totals.times)
            attempt(time, [&] { throw error; });
        for (auto &claim : m_totals.claims)
            attempt(claim, [&] { throw error; });
    }
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
    /// Continues a figure unless it has failed before.
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

template <class Items> clsColumnTotals totalsOf(const clsZR3Form &form, clsSchedulePrices &prices, const Items &items)
{
    clsTotalling totalling;
    clsBillFilter isOnBill(form);
    try {
        for (const auto &item : items)
            if (isOnBill(*item))
                totalling.add(form, *item, prices.of(*item));
    } catch (const clsRunTimeError &error) {
        totalling.failAll(error);
    }
    return totalling.totals();
}

} // namespace

QString ColumnTimeTotal(const clsBill &bill, int column)
{
    return bill.columns().times[size_t(column)].get();
}

Money ColumnClaimTotal(const clsBill &bill, int column)
{
    return bill.columns().claims[size_t(column)].get();
}

Money ScheduleTotal(const clsBill &bill)
{
    return bill.columns().schedule.get();
}

Money ScheduleTotalOf(const clsZR3Form &form, const std::vector<const clsZR3ScheduleOfTimeItem *> &items)
{
    clsSchedulePrices prices(form);
    return totalsOf(form, prices, items).schedule.get();
}

clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices)
{
    return totalsOf(form, prices, form.ScheduleOfTimeItemsCollection());
}

Money AdvocacyTotal(const clsBill &bill)
{
    const clsZR3Form &form = bill.form();
    if (form.FormType() != QLatin1String("Claim1") && !form.FASItemsCollection().empty())
        return RoundMoney2(FASItemsTotal(form));
    return RoundMoney2(bill.advocacy().get());
}

clsFigure<Money> ScheduleAdvocacy(const clsZR3Form &form, clsSchedulePrices &prices)
{
    clsFigure<Money> total;
    try {
        for (const auto &item : form.ScheduleOfTimeItemsCollection()) {
            const clsSchedulePrice &price = prices.of(*item);
            if (price.Advocacy ? *price.Advocacy : item->Advocacy())
                total.value += claimOf(form, *item, price);
        }
    } catch (const clsRunTimeError &error) {
        total.error = error;
    }
    return total;
}
