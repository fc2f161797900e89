#include "editors/mdItemAmounts.h"

#include "base/clsRunTimeError.h"
#include "base/mdFormatMoney.h"
#include "costing/mdFigureFaults.h"
#include "formdata/clsSchedulePrices.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

clsGridTexts mdScheduleAmounts()
{
    // All prices at once, as in the preview.
    const auto prices = std::make_shared<clsSchedulePrices>(*Form);
    return [prices](const clsZR3Item &item) {
        const auto &work = static_cast<const clsZR3ScheduleOfTimeItem &>(item);
        const clsSchedulePrice &price = prices->of(work);
        if (const int number = price.errorOf(clsSchedulePrice::ClaimFigure)) {
            const clsRunTimeError error(number);
            throw error.because(mdSentenceFor(error, mdFigureFaults(*Form, work)));
        }
        return mdFormatMoney(price.Claim);
    };
}
