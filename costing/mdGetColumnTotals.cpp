#include "costing/mdGetColumnTotals.h"

#include "costing/clsSchedulePrices.h"
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

void addTime(int &minutes, const QString &time)
{
    if (__builtin_add_overflow(minutes, TimeToMinutes(time), &minutes))
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

} // namespace

QString ColumnTimeTotal(const clsZR3Form &form, int column)
{
    int minutes = 0;
    forBilledItems(form, column, [&](const clsZR3ScheduleOfTimeItem &item) { addTime(minutes, item.TTime()); });
    return MinutesToTime(minutes);
}

Money ColumnClaimTotal(const clsZR3Form &form, int column)
{
    Money total;
    forBilledItems(form, column, [&](const clsZR3ScheduleOfTimeItem &item) { total = total + item.Claim(); });
    return RoundMoney2(total);
}

Money ScheduleTotal(const clsZR3Form &form)
{
    return sumOfColumns([&](int column) { return ColumnClaimTotal(form, column); });
}

clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices)
{
    std::array<int, clsZR3ScheduleOfTimeItem::Columns> minutes {};
    clsColumnTotals totals;
    clsOnBill isOnBill(form);
    for (const auto &item : form.ScheduleOfTimeItemsCollection()) {
        if (!isOnBill(*item))
            continue;
        const clsSchedulePrice &price = prices.of(*item);
        const auto column = size_t(price.TimeColumn);
        addTime(minutes[column], price.TTime);
        totals.claims[column] += price.Claim;
    }
    for (size_t column = 0; column < minutes.size(); ++column) {
        totals.times[column] = MinutesToTime(minutes[column]);
        totals.claims[column] = RoundMoney2(totals.claims[column]);
    }
    totals.schedule = sumOfColumns([&](int column) { return totals.claims[size_t(column)]; });
    return totals;
}

Money AdvocacyTotal(const clsZR3Form &form)
{
    if (form.FormType() != QLatin1String("Claim1") && !form.FASItemsCollection().empty())
        return RoundMoney2(FASItemsTotal(form));
    Money total;
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        if (item->Advocacy())
            total = total + item->Claim();
    return RoundMoney2(total);
}
