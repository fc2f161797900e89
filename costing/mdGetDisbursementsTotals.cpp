#include "costing/mdGetDisbursementsTotals.h"

#include "base/mdSumOf.h"
#include "costing/mdSumOfField.h"
#include "formdata/clsZR3Form.h"

Money CounselDisbursementsAmountTotal(const clsZR3Form &form)
{
    return mdSumOfField(form, form.CounselDisbursementsCollection(), &clsZR3Disbursement::Amount);
}

Money CounselDisbursementsVATTotal(const clsZR3Form &form)
{
    return mdSumOfField(form, form.CounselDisbursementsCollection(), &clsZR3Disbursement::VAT);
}

Money NonCounselDisbursementsAmountTotal(const clsZR3Form &form)
{
    return mdSumOfField(form, form.NonCounselDisbursementsCollection(), &clsZR3Disbursement::Amount);
}

Money NonCounselDisbursementsVATTotal(const clsZR3Form &form)
{
    return mdSumOfField(form, form.NonCounselDisbursementsCollection(), &clsZR3Disbursement::VAT);
}

Money NonCounselDisbursementsGrossTotal(const clsZR3Form &form)
{
    return mdSumOf({NonCounselDisbursementsAmountTotal(form), NonCounselDisbursementsVATTotal(form)});
}

Money ExpertInvoicesNetTotal(const clsZR3Form &form)
{
    return mdSumOfField(form, form.ExpertInvoicesCollection(), &clsZR3ExpertInvoice::NetAmount);
}

Money ExpertInvoicesVATTotal(const clsZR3Form &form)
{
    return mdSumOfField(form, form.ExpertInvoicesCollection(), &clsZR3ExpertInvoice::VATAmount);
}

Money ExpertInvoicesGrossTotal(const clsZR3Form &form)
{
    return mdSumOf({ExpertInvoicesNetTotal(form), ExpertInvoicesVATTotal(form)});
}
