#include "costing/mdCheckForBlankItems.h"

#include "costing/mdNumberText.h"
#include "costing/mdTimeFormatting.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdCustomMessages.h"
#include "shell/mdLog.h"

namespace {

QString reportLine(const QString &kind, int count)
{
    return count > 0 ? QStringLiteral("%1: %2\r\n").arg(kind).arg(count) : QString();
}

} // namespace

clsBlankItems mdCountBlankItems(const clsZR3Form &form)
{
    clsBlankItems blank;
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        if (TimeToMinutes(item->TTime()) == 0)
            ++blank.ScheduleItems;
    for (const auto &disbursement : form.DisbursementsCollection())
        if (TextValue(disbursement->Amount()) == 0 && TextValue(disbursement->VAT()) == 0)
            ++blank.Disbursements;

    const QString report = reportLine(QStringLiteral("Schedule of Time Items"), blank.ScheduleItems)
        + reportLine(QStringLiteral("Disbursements"), blank.Disbursements);
    blank.Message = report.isEmpty() ? QStringLiteral("No blank items found")
                                     : QStringLiteral("Blank items: \r\n\r\n") + report;
    return blank;
}

void CheckForBlankItems(const clsZR3Form &form)
{
    WriteLog(QStringLiteral("Begin Check for Blank Items"));
    mdCustomMessages(mdCountBlankItems(form).Message, QStringLiteral("Blank Items"));
    WriteLog(QStringLiteral("End Check for Blank Items"));
}
