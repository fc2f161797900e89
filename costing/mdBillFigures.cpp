#include "costing/mdBillFigures.h"

#include "base/mdSumOf.h"
#include "costing/mdGetColumnTotals.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>

namespace {

using Form = clsZR3Form;

Money loadFromBillNet(const clsBill &bill)
{
    const Money profitCosts = ProfitCostsTotal(bill);
    return profitCosts - AdvocacyTotal(bill);
}

const clsBillFigure Totals[] = {
    {"ScheduleTotal", ScheduleTotal},
    {"AdvocacyTotal", AdvocacyTotal},
    {"CounselDisbursementsAmountTotal", mdOfForm<CounselDisbursementsAmountTotal>},
    {"CounselDisbursementsVATTotal", mdOfForm<CounselDisbursementsVATTotal>},
    {"NonCounselDisbursementsAmountTotal", mdOfForm<NonCounselDisbursementsAmountTotal>},
    {"NonCounselDisbursementsVATTotal", mdOfForm<NonCounselDisbursementsVATTotal>},
    {"ExpertInvoicesNetTotal", mdOfForm<ExpertInvoicesNetTotal>},
    {"ExpertInvoicesVATTotal", mdOfForm<ExpertInvoicesVATTotal>},
    {"CounselFeesAmountTotal", mdOfForm<CounselFeesAmountTotal>},
    {"CounselFeesVATTotal", mdOfForm<CounselFeesVATTotal>},
    {"CounselFeesTotal", mdOfForm<CounselFeesTotal>},
    {"FASItemsTotal", mdOfForm<FASItemsTotal>},
    {"FASVATTotal", mdOfForm<FASVATTotal>},
    {"CommsTotal", mdOfForm<CommsTotal>},
    {"ProfitCostsTotal", ProfitCostsTotal},
    {"ProfitCostsVAT", ProfitCostsVAT},
    {"AdvocacyVAT", [](const clsBill &bill) { return VATOf(bill.form(), AdvocacyTotal(bill)); }},
    {"LoadFromBillNet", loadFromBillNet},
    {"LoadFromBillVAT", [](const clsBill &bill) { return VATOf(bill.form(), loadFromBillNet(bill)); }},
};

// The columns of a list of claims

Money listDisbursements(const clsBill &bill)
{
    return RoundMoney2(mdSumOf({ExpertInvoicesNetTotal(bill.form()), NonCounselDisbursementsAmountTotal(bill.form())}));
}

Money listCounsel(const clsBill &bill)
{
    return RoundMoney2(CounselFeesTotal(bill.form()));
}

Money claim1Total(const clsBill &bill)
{
    return RoundMoney2(GrossWithoutCounsel(bill));
}

Money claim1AVAT(const clsBill &bill)
{
    return mdSumOf({VATWithoutCounsel(bill), FASVATTotal(bill.form())});
}

Money claim1ATotal(const clsBill &bill)
{
    return RoundMoney2(mdSumOf({NetWithoutCounsel(bill), FASItemsTotal(bill.form()), claim1AVAT(bill)}));
}

const clsBillFigure Claim1List[] = {
    {"profitcosts", ProfitCostsTotal},
    {"disbursements", listDisbursements},
    {"vat", [](const clsBill &bill) { return RoundMoney2(VATWithoutCounsel(bill)); }},
    {"total", claim1Total},
    {"counsel", listCounsel},
    {"all",
        [](const clsBill &bill) {
            return RoundMoney2(
                mdSumOf({NetWithoutCounsel(bill), VATWithoutCounsel(bill), CounselFeesTotal(bill.form())}));
        }},
};

const clsBillFigure Claim1AList[] = {
    {"profitcosts", ProfitCostsTotal},
    {"disbursements", listDisbursements},
    {"fas", [](const clsBill &bill) { return RoundMoney2(FASItemsTotal(bill.form())); }},
    {"vat", [](const clsBill &bill) { return RoundMoney2(claim1AVAT(bill)); }},
    {"total", claim1ATotal},
    {"counsel", listCounsel},
    {"all",
        [](const clsBill &bill) {
            return RoundMoney2(mdSumOf({NetWithoutCounsel(bill), FASItemsTotal(bill.form()), claim1AVAT(bill),
                CounselFeesTotal(bill.form())}));
        }},
};

const clsBillFigure Strip[] = {
    {"other",
        [](const clsBill &bill) {
            const Form &form = bill.form();
            return mdSumOf({CommsTotal(form), ExpertInvoicesNetTotal(form), NonCounselDisbursementsAmountTotal(form)});
        }},
    {"fixedfee", mdOfForm<FixedFee>},
    {"limit", NetCostsWithCounsel},
};

bool isClaim1A(const Form &form)
{
    return form.FormType() == QLatin1String("Claim1A");
}

} // namespace

std::span<const clsBillFigure> mdTotalFigures()
{
    return Totals;
}

std::span<const clsBillFigure> mdSummaryFigures(const clsZR3Form &form)
{
    if (isClaim1A(form))
        return Claim1ASummary;
    return Claim1Summary;
}

std::span<const clsBillFigure> mdListFigures(const clsZR3Form &form)
{
    if (isClaim1A(form))
        return Claim1AList;
    return Claim1List;
}

std::span<const clsBillFigure> mdStripFigures()
{
    return Strip;
}

const clsBillFigure *mdFigureOf(std::span<const clsBillFigure> figures, QLatin1String key)
{
    const auto row = std::find_if(figures.begin(), figures.end(),
        [key](const clsBillFigure &figure) { return key == QLatin1String(figure.key); });
    return row == figures.end() ? nullptr : &*row;
}
