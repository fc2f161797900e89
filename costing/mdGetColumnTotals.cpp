#include "costing/mdGetColumnTotals.h"

#include "costing/mdGetFASTotals.h"
#include "shell/mdNumberText.h"
#include "costing/mdTimeFormatting.h"
#include "formdata/clsZR3Form.h"

namespace {

/// Visits the items of a column that stand on the bill.
template <class Visit> void forBilledItems(const clsZR3Form &form, int column, Visit visit)
{
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        if (form.IsOnBill(*item) && item->TimeColumn() == column)
            visit(*item);
}

} // namespace

QString ColumnTimeTotal(const clsZR3Form &form, int column)
{
    int minutes = 0;
    forBilledItems(form, column, [&](const clsZR3ScheduleOfTimeItem &item) {
        if (__builtin_add_overflow(minutes, TimeToMinutes(item.TTime()), &minutes))
            throw clsRunTimeError(clsRunTimeError::Overflow);
    });
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
    Money total;
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
        total = total + MoneyFromDouble(TextValue(MoneyToText(ColumnClaimTotal(form, column))));
    return RoundMoney2(total);
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
