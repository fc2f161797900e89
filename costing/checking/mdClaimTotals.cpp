#include "costing/checking/mdClaimTotals.h"

#include "costing/mdBillFigures.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdCostsLimit.h"

namespace {

struct clsStripRow {
    const char *key;
    const char *words;
    bool isClaim1AOnly = false;
};

constexpr clsStripRow Figures[] = {
    {"ScheduleTotal", "Schedule"},
    {"CommsTotal", "Letters and calls"},
    {"ExpertInvoicesNetTotal", "Experts"},
    {"NonCounselDisbursementsAmountTotal", "Disbursements"},
    {"vat", "VAT"},
    {"total", "Total"},
};

constexpr clsStripRow Apart[] = {
    {"counsel", "Counsel"},
    {"fas", "Advocacy scheme", true},
    {"fixedfee", "Fixed fee", true},
};

constexpr clsStripRow Other = {"other", "Other"};
constexpr clsStripRow Costs = {"limit", "Costs limit"};

const clsBillFigure &figureOf(const clsZR3Form &form, const char *key)
{
    for (const auto figures : {mdTotalFigures(), mdListFigures(form), mdStripFigures()})
        if (const clsBillFigure *figure = mdFigureOf(figures, QLatin1String(key)))
            return *figure;
    throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
}

clsClaimTotal totalOf(const clsBill &bill, const clsStripRow &row)
{
    clsClaimTotal total {QString::fromLatin1(row.key), QString::fromLatin1(row.words)};
    try {
        total.Value = figureOf(bill.form(), row.key).figure(bill);
    } catch (const clsRunTimeError &error) {
        total.Failure = error.cause().isEmpty() ? error.description() : error.cause();
    }
    return total;
}

template <size_t Count> std::vector<clsClaimTotal> totalsOf(const clsBill &bill, const clsStripRow (&rows)[Count])
{
    const bool isClaim1A = bill.form().FormType() == QLatin1String("Claim1A");
    std::vector<clsClaimTotal> totals;
    for (const clsStripRow &row : rows)
        if (isClaim1A || !row.isClaim1AOnly)
            totals.push_back(totalOf(bill, row));
    return totals;
}

} // namespace

clsClaimTotals mdClaimTotals(const clsBill &bill)
{
    clsClaimTotals totals {totalsOf(bill, Figures), totalsOf(bill, Apart), totalOf(bill, Other), {}, {}};
    totals.Limit = mdCostsLimit(bill.form());
    totals.Costs = totalOf(bill, Costs);
    return totals;
}
