#include "programs/zr3tool/mdPlainReports.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsJsonWriter.h"
#include "costing/mdCheckForBlankItems.h"

#include <cstdio>

namespace {

const QString LineEnd = QStringLiteral("\r\n");

} // namespace

clsExitStatus mdTellTotals(clsConsoleUserInterface &console, const clsTotalsReport &report)
{
    if (!report.hasFailures)
        return clsExitStatus::Done;
    console.tell(QStringLiteral("Totals"),
        QStringLiteral(
            "Some figures of this claim can't be computed. Each of them stands as \"!\" and the number of its "
            "run-time error.")
            + (report.causes.isEmpty() ? QString() : LineEnd + report.causes.join(LineEnd)));
    return clsExitStatus::Failed;
}

clsBlankItems mdBlankItems(const clsZR3Form &form)
{
    const clsBill bill(form);
    return {mdCountBlankScheduleItems(bill), mdCountBlankDisbursements(form), mdBlankItemsMessage(bill)};
}

QString mdBlankItemsInLines(const clsBlankItems &blank)
{
    return blank.message.endsWith(LineEnd) ? blank.message : blank.message + LineEnd;
}

void mdWriteBlankItems(clsJsonWriter &json, const clsBlankItems &blank)
{
    json.beginObject("BlankItems");
    json.number("ScheduleItems", blank.scheduleItems);
    json.number("Disbursements", blank.disbursements);
    json.text("Message", blank.message);
    json.endObject();
}

clsExitStatus mdTellUnwritten()
{
    std::fputs("Standard output: The result could not be written.\n", stderr);
    return clsExitStatus::Failed;
}
