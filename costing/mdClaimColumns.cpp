#include "costing/mdClaimColumns.h"

#include "base/clsRunTimeError.h"
#include "costing/clsBill.h"
#include "costing/mdBillFigures.h"
#include "formdata/clsBillFilter.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>

namespace {

constexpr const char *Amounts[] = {"profitcosts", "disbursements", "fas", "vat", "total", "counsel", "all"};

QString clientOf(const clsZR3Form &form)
{
    QStringList words;
    for (const QString &part :
        {form.ClientDetails.Title(), form.ClientDetails.FirstName(), form.ClientDetails.Surname()})
        if (const QString word = part.trimmed(); !word.isEmpty())
            words << word;
    return words.join(u' ');
}

std::optional<int> itemsOnBill(const clsZR3Form &form)
{
    try {
        clsBillFilter isOnBill(form);
        const auto &items = form.ScheduleOfTimeItemsCollection();
        return int(std::count_if(items.begin(), items.end(), [&](const auto &item) { return isOnBill(*item); }));
    } catch (const clsRunTimeError &) {
        return {};
    }
}

clsClaimColumn amountOf(const clsBill &bill, const char *key)
{
    clsClaimColumn column {key};
    const clsBillFigure *figure = mdFigureOf(mdListFigures(bill.form()), QLatin1String(key));
    if (!figure)
        return column;
    try {
        column.amount = RoundMoney2(figure->figure(bill));
    } catch (const clsRunTimeError &error) {
        column.failure = error.cause().isEmpty() ? error.description() : error.cause();
    }
    return column;
}

} // namespace

bool clsClaimColumns::hasFailures() const
{
    return std::any_of(
        amounts.begin(), amounts.end(), [](const clsClaimColumn &column) { return !column.failure.isEmpty(); });
}

QStringList clsClaimColumns::failures() const
{
    QStringList reasons;
    for (const clsClaimColumn &column : amounts)
        if (!column.failure.isEmpty() && !reasons.contains(column.failure))
            reasons << column.failure;
    return reasons;
}

std::vector<const char *> mdClaimAmountKeys()
{
    return {std::begin(Amounts), std::end(Amounts)};
}

clsClaimColumns mdClaimColumns(const clsBill &bill)
{
    const clsZR3Form &form = bill.form();
    clsClaimColumns columns {
        form.FormType(), clientOf(form), form.ClientDetails.CaseReferenceNumber(), itemsOnBill(form), {}};
    for (const char *key : Amounts)
        columns.amounts.push_back(amountOf(bill, key));
    return columns;
}
