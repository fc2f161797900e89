#include "costing/mdGetBillSummary.h"

#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdPercentageCalculate.h"
#include "costing/mdSumOf.h"
#include "formdata/clsZR3Form.h"

Money VATOf(const clsZR3Form &form, Money amount)
{
    return PercentageCalculate(amount, form.VATRate());
}

Money ProfitCostsVAT(const clsZR3Form &form)
{
    return VATOf(form, ProfitCostsTotal(form));
}

Money NetWithoutCounsel(const clsZR3Form &form)
{
    return mdSumOf({ProfitCostsTotal(form), ExpertInvoicesNetTotal(form), NonCounselDisbursementsAmountTotal(form)});
}

Money VATWithoutCounsel(const clsZR3Form &form)
{
    return mdSumOf({ProfitCostsVAT(form), ExpertInvoicesVATTotal(form), NonCounselDisbursementsVATTotal(form)});
}
