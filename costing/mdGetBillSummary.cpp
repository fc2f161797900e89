#include "costing/mdGetBillSummary.h"

#include "base/mdPercentageCalculate.h"
#include "base/mdSumOf.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdRecordInWords.h"

Money VATOf(const clsZR3Form &form, Money amount)
{
    const QString rate = form.VATRate();
    try {
        return PercentageCalculate(amount, rate);
    } catch (const clsRunTimeError &error) {
        throw error.because(QStringLiteral("Form Setup: the VAT rate of %1 makes the VAT larger than an amount can be")
                                .arg(mdQuoted(rate)));
    }
}

Money ProfitCostsVAT(const clsBill &bill)
{
    return VATOf(bill.form(), ProfitCostsTotal(bill));
}

Money NetWithoutCounsel(const clsBill &bill)
{
    const clsZR3Form &form = bill.form();
    return mdSumOf({ProfitCostsTotal(bill), ExpertInvoicesNetTotal(form), NonCounselDisbursementsAmountTotal(form)});
}

Money VATWithoutCounsel(const clsBill &bill)
{
    const clsZR3Form &form = bill.form();
    return mdSumOf({ProfitCostsVAT(bill), ExpertInvoicesVATTotal(form), NonCounselDisbursementsVATTotal(form)});
}

Money GrossWithoutCounsel(const clsBill &bill)
{
    return mdSumOf({NetWithoutCounsel(bill), VATWithoutCounsel(bill)});
}

Money NetWithAdvocacyAndCounsel(const clsBill &bill)
{
    return mdSumOf({NetWithoutCounsel(bill), FASItemsTotal(bill.form()), CounselFeesAmountTotal(bill.form())});
}

Money VATWithAdvocacyAndCounsel(const clsBill &bill)
{
    return mdSumOf({VATWithoutCounsel(bill), FASVATTotal(bill.form()), CounselFeesVATTotal(bill.form())});
}

Money NetCostsWithCounsel(const clsBill &bill)
{
    if (bill.form().FormType() != QLatin1String("Claim1"))
        return NetWithAdvocacyAndCounsel(bill);
    return mdSumOf({NetWithoutCounsel(bill), CounselFeesAmountTotal(bill.form())});
}

Money FixedFee(const clsZR3Form &form)
{
    const QString text = form.ActualCostsIncurred.FixedFee();
    try {
        return text.isEmpty() ? Money() : MoneyFromText(text);
    } catch (const clsRunTimeError &error) {
        throw error.because(mdSentenceFor(error, mdFixedFeeFaults(form)));
    }
}

Money FixedFeeNetTotal(const clsZR3Form &form)
{
    return mdSumOf({FixedFee(form), NonCounselDisbursementsAmountTotal(form), ExpertInvoicesNetTotal(form)});
}

Money FixedFeeVATTotal(const clsZR3Form &form)
{
    return mdSumOf({VATOf(form, FixedFee(form)), NonCounselDisbursementsVATTotal(form), ExpertInvoicesVATTotal(form)});
}
