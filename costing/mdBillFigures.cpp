#include "costing/mdBillFigures.h"

#include "base/mdSumOf.h"
#include "costing/mdGetBillSummary.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>

namespace {

using Form = clsZR3Form;


/// A figure that needs nothing of the schedule's, such as `of<CommsTotal>`.
template <Money (*Figure)(const Form &)> Money of(const clsBill &bill)
{
    return Figure(bill.form());
}

Money loadFromBillNet(const clsBill &bill)
{
    const Money profitCosts = ProfitCostsTotal(bill);
    return profitCosts - AdvocacyTotal(bill);
}

const clsBillFigure Totals[] = {
    {"ScheduleTotal", ScheduleTotal},
    {"AdvocacyTotal", AdvocacyTotal},
    {"CounselDisbursementsAmountTotal", of<CounselDisbursementsAmountTotal>},
    {"CounselDisbursementsVATTotal", of<CounselDisbursementsVATTotal>},
    {"NonCounselDisbursementsAmountTotal", of<NonCounselDisbursementsAmountTotal>},
    {"NonCounselDisbursementsVATTotal", of<NonCounselDisbursementsVATTotal>},
    {"ExpertInvoicesNetTotal", of<ExpertInvoicesNetTotal>},
    {"ExpertInvoicesVATTotal", of<ExpertInvoicesVATTotal>},
    {"CounselFeesAmountTotal", of<CounselFeesAmountTotal>},
    {"CounselFeesVATTotal", of<CounselFeesVATTotal>},
    {"CounselFeesTotal", of<CounselFeesTotal>},
    {"FASItemsTotal", of<FASItemsTotal>},
    {"FASVATTotal", of<FASVATTotal>},
    {"CommsTotal", of<CommsTotal>},
    {"ProfitCostsTotal", ProfitCostsTotal},
    {"ProfitCostsVAT", ProfitCostsVAT},
    {"AdvocacyVAT", [](const clsBill &bill) { return VATOf(bill.form(), AdvocacyTotal(bill)); }},
    {"LoadFromBillNet", loadFromBillNet},
    {"LoadFromBillVAT", [](const clsBill &bill) { return VATOf(bill.form(), loadFromBillNet(bill)); }},
};

const clsBillFigure Claim1Summary[] = {
    {"npc", ProfitCostsTotal},
    {"nex", of<ExpertInvoicesNetTotal>},
    {"ndibs", of<NonCounselDisbursementsAmountTotal>},
    {"vpc", ProfitCostsVAT},
    {"vex", of<ExpertInvoicesVATTotal>},
    {"vdibs", of<NonCounselDisbursementsVATTotal>},
    {"ntotal", NetWithoutCounsel},
    {"vtotal", VATWithoutCounsel},
    {"grandtotal",
        [](const clsBill &bill) {
            return mdSumOf({NetWithoutCounsel(bill), VATWithoutCounsel(bill)});
        }},
    {"ncf", of<CounselFeesAmountTotal>},
    {"vcf", of<CounselFeesVATTotal>},
    {"cftotal", of<CounselFeesTotal>},
};

const clsBillFigure Claim1ASummary[] = {
    {"npc", ProfitCostsTotal},
    {"nex", of<ExpertInvoicesNetTotal>},
    {"ndibs", of<NonCounselDisbursementsAmountTotal>},
    {"vpc", ProfitCostsVAT},
    {"vex", of<ExpertInvoicesVATTotal>},
    {"vdibs", of<NonCounselDisbursementsVATTotal>},
    {"nsubtotal", NetWithoutCounsel},
    {"vsubtotal", VATWithoutCounsel},
    {"nfas", of<FASItemsTotal>},
    {"vfas", of<FASVATTotal>},
    {"ncsl", of<CounselFeesAmountTotal>},
    {"vcsl", of<CounselFeesVATTotal>},
    {"ntotal", NetWithAdvocacyAndCounsel},
    {"vtotal", VATWithAdvocacyAndCounsel},
};

// The columns of a list of claims

Money listDisbursements(const clsBill &bill)
{
    return RoundMoney2(
        mdSumOf({ExpertInvoicesNetTotal(bill.form()), NonCounselDisbursementsAmountTotal(bill.form())}));
}

Money listCounsel(const clsBill &bill)
{
    return RoundMoney2(CounselFeesTotal(bill.form()));
}

Money claim1Total(const clsBill &bill)
{
    return RoundMoney2(mdSumOf({NetWithoutCounsel(bill), VATWithoutCounsel(bill)}));
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

const clsBillFigure *mdFigureOf(std::span<const clsBillFigure> figures, QLatin1String key)
{
    const auto row = std::find_if(
        figures.begin(), figures.end(), [key](const clsBillFigure &figure) { return key == QLatin1String(figure.key); });
    return row == figures.end() ? nullptr : &*row;
}
