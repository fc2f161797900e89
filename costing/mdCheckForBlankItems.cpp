#include "costing/mdCheckForBlankItems.h"

#include "base/mdCustomMessages.h"
#include "base/mdLog.h"
#include "base/mdNumberText.h"
#include "base/mdTimeFormatting.h"
#include "costing/mdFigureFaults.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

QString reportLine(const QString &kind, int count)
{
    return count > 0 ? QStringLiteral("%1: %2\r\n").arg(kind).arg(count) : QString();
}

} // namespace

int mdCountBlankScheduleItems(const clsBill &bill)
{
    int count = 0;
    for (const auto &item : bill.form().ScheduleOfTimeItemsCollection()) {
        const clsSchedulePrice &price = bill.prices().of(*item);
        if (price.errorOf(clsSchedulePrice::TimeFigure))
            mdExplained(bill.form(), *item, [&] { TimeToMinutes(item->TTime()); });
        count += price.Minutes == 0;
    }
    return count;
}

int mdCountBlankDisbursements(const clsZR3Form &form)
{
    int count = 0;
    for (const auto &disbursement : form.DisbursementsCollection())
        if (TextValue(disbursement->Amount()) == 0 && TextValue(disbursement->VAT()) == 0)
            ++count;
    return count;
}

QString mdBlankItemsMessage(const clsBill &bill)
{
    const QString report = reportLine(QStringLiteral("Schedule of Time Items"), mdCountBlankScheduleItems(bill))
        + reportLine(QStringLiteral("Disbursements"), mdCountBlankDisbursements(bill.form()));
    return report.isEmpty() ? QStringLiteral("No blank items found") : QStringLiteral("Blank items: \r\n\r\n") + report;
}

void CheckForBlankItems()
{
    if (!Form)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    CheckForBlankItems(*Form);
}

void CheckForBlankItems(const clsZR3Form &form)
{
    WriteLog(QStringLiteral("Begin Check for Blank Items"));
    mdCustomMessages(mdBlankItemsMessage(form), QStringLiteral("Blank Items"), clsUserInterface::OKOnly,
        clsUserInterface::Information);
    WriteLog(QStringLiteral("End Check for Blank Items"));
}
