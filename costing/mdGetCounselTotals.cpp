#include "costing/mdGetCounselTotals.h"

#include "base/mdRequired.h"
#include "base/mdSumOf.h"
#include "costing/mdFigureFaults.h"
#include "formdata/clsZR3Form.h"

namespace {

/// The sum of a money field over the disbursements that are counsel's fees.
template <class Field> Money sumOfFees(const clsZR3Form &form, Field field)
{
    Money total;
    for (const auto &disbursement : form.DisbursementsCollection())
        if (disbursement->Counsel())
            total = total + mdExplained(form, *disbursement, [&] { return MoneyFromText(((*disbursement).*field)()); });
    return total;
}

/// The counsel at a position of the breakdown, or null.
std::shared_ptr<clsZR3Counsel> counselAtLine(const clsZR3Form &form, int position)
{
    const int number = int(form.CounselCollection().size());
    if (number < 2 || position > number)
        return {};
    const auto counsel = form.CounselByOrderID(position);
    mdRequired(counsel);
    return counsel;
}

} // namespace

Money CounselFeesAmountTotal(const clsZR3Form &form)
{
    return sumOfFees(form, &clsZR3Disbursement::Amount);
}

Money CounselFeesVATTotal(const clsZR3Form &form)
{
    return sumOfFees(form, &clsZR3Disbursement::VAT);
}

Money CounselFeesTotal(const clsZR3Form &form)
{
    return mdSumOf({CounselFeesAmountTotal(form), CounselFeesVATTotal(form)});
}

QString CounselAccountNumberAtLine(const clsZR3Form &form, int position)
{
    const auto counsel = counselAtLine(form, position);
    return counsel ? counsel->AccountNumber() : QString();
}

Money CounselGrossAtLine(const clsZR3Form &form, int position)
{
    const auto counsel = counselAtLine(form, position);
    if (!counsel)
        return {};
    const QString uniqueID = counsel->UniqueID();
    Money total;
    for (const auto &disbursement : form.DisbursementsCollection())
        if (disbursement->Counsel() && disbursement->CounselUniqueID() == uniqueID)
            mdExplained(form, *disbursement, [&] {
                total = mdSumOf({total, MoneyFromText(disbursement->Amount()), MoneyFromText(disbursement->VAT())});
            });
    return total;
}
