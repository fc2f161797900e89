#include "editors/mdListPlace.h"

#include "base/mdNumberText.h"
#include "controls/oContentSwitcher.h"
#include "controls/oFrame.h"
#include "controls/oSGrid.h"
#include "editors/mdEnterField.h"
#include "formdata/clsZR3Item.h"
#include "formdata/mdLateProperty.h"

namespace {

struct clsListRow {
    const char *list;
    const char *section;
    const char *control;
    const char *caption;
};

constexpr clsListRow Lists[] = {
    {"schedule", "Schedule of Time", "sgScheduleOfTime", "Schedule of Time"},
    {"disbursements", "Disbursements", "sgOtherDisbursements", "Other Disbursements"},
    {"experts", "Disbursements", "sgExpertInvoices", "Expert Invoices"},
    {"joint", "Disbursements", "sgJointInstructions", "Joint Instructions"},
    {"fas", "Family Advocacy Scheme", "sgFamilyAdvocacyScheme", "Family Advocacy Scheme"},
};

void openPageOf(const QWidget &screen, const QWidget &control)
{
    for (oContentSwitcher *switcher : screen.findChildren<oContentSwitcher *>())
        for (int page = 1; page <= switcher->Pages(); ++page)
            if (switcher->Page(page)->isAncestorOf(&control) && switcher->OpenPage() != page)
                switcher->SwitchTo(page);
}

} // namespace

std::optional<clsListPlace> mdListPlace(const QString &list)
{
    for (const clsListRow &row : Lists)
        if (list == QLatin1String(row.list))
            return clsListPlace {
                QString::fromLatin1(row.section), QString::fromLatin1(row.control), QString::fromLatin1(row.caption)};
    return {};
}

void mdEnterPlace(const QWidget &screen, const QString &control, int order)
{
    auto *place = screen.findChild<QWidget *>(control);
    if (!place)
        return;
    openPageOf(screen, *place);
    if (auto *grid = qobject_cast<oSGrid *>(place); grid && order > 0)
        for (const auto &item : grid->ItemCollection())
            if (LongFromText(ReadProperty(*item, u"OrderID")) == order)
                grid->SelectItem(item->Index);
    mdEnterField(*place);
}
