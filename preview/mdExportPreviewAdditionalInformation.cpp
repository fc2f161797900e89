#include "preview/mdExportPreviewAdditionalInformation.h"

#include "base/mdSetProgress.h"
#include "formdata/clsZR3Form.h"
#include "preview/mdExportPreview.h"

namespace {

constexpr int NumberColumn = 1;
constexpr int TextColumn = 2;
constexpr int NumberShare = 10;
constexpr int TextShare = 90;

} // namespace

void mdExportPreviewAdditionalInformationInit()
{
    mdExportPreviewInit();
    mdExportPreviewAddColumn(NumberShare);
    mdExportPreviewAddColumn(TextShare);
}

void mdExportPreviewAdditionalInformationDraw(const clsZR3Form &form)
{
    const int count = int(form.AdditionalInformationItemsCollection().size());
    for (int index = 1; index <= count; ++index) {
        mdSetProgress(index, count, QStringLiteral("Drawing"));
        mdExportPreviewAdditionalInformationItemDraw(*form.AdditionalInformationItem(index));
    }
    mdClearProgress();
}

void mdExportPreviewAdditionalInformationItemDraw(const clsZR3ScheduleOfTimeItem &item)
{
    mdExportPreviewAddRow(true);
    // The position in the order, not the number on the schedule, which differs if items are left out. Required
    // behaviour; do not fix.
    mdExportPreviewSetText(NumberColumn, QString::number(item.OrderID()), clsGridAlignment::Right, true);
    mdExportPreviewSetText(TextColumn, item.Description(), clsGridAlignment::LeftWrapped, true);
}

void mdExportPreviewAdditionalInformationDeInit()
{
    mdExportPreviewDeInit();
}
