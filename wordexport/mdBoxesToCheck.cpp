#include "wordexport/mdBoxesToCheck.h"

#include "formdata/mdClaimLists.h"
#include "wordexport/clsForecast.h"

#include <algorithm>
#include <iterator>

namespace {

using Box = clsForecast::Box;

struct clsPageRow {
    const char *page;
    const char *screen; ///< the text of its tab
};

/// The screens of the figures on the pages.
constexpr clsPageRow Pages[] = {
    {"Claim1 P4", "Disbursements"},
    {"Claim1 P5", "Schedule of Time"},
    {"Claim1 P6", "Disbursements"},
    {"Claim1 P7", "Disbursements"},
    {"Claim1 P8", "Communications"},
    {"Claim1A P4", "Actual Costs"},
    {"Claim1A P5", "Disbursements"},
    {"Claim1A P6", "Disbursements"},
    {"Claim1A P7", "Disbursements"},
    {"Claim1A P8", "Family Advocacy Scheme"},
    {"Claim1A P10", "Schedule of Time"},
    {"Claim1A P11", "Communications"},
};

/// The page of a sheet as in its template's name: "Claim1A P8".
QString pageOf(const clsForecast &forecast, const QString &sheetName)
{
    for (const clsForecast::Sheet &sheet : forecast.Sheets)
        if (sheet.Name == sheetName)
            return QStringLiteral("%1 P%2").arg(sheet.Template.section(u' ', 0, 0)).arg(sheet.Page);
    return {};
}

QString screenOfFigures(const QString &page)
{
    const auto *row = std::find_if(std::begin(Pages), std::end(Pages),
        [&](const clsPageRow &candidate) { return page == QLatin1String(candidate.page); });
    return row == std::end(Pages) ? QString() : QString::fromLatin1(row->screen);
}

void place(clsPrintedBox &box, const Box &given, const clsForecast &forecast)
{
    const qsizetype dot = given.Property.indexOf(u'.');
    box.Property = given.Property.mid(dot + 1);
    if (given.Item > 0) {
        box.Screen = mdTabOfList(given.List);
        box.List = given.List;
        box.Item = given.Item;
    } else if (given.Row > 0) { // the additional information
        box.Screen = mdTabOfList(QStringLiteral("schedule"));
        box.List = QStringLiteral("schedule");
        box.Property = QStringLiteral("Description");
    } else if (dot >= 0) {
        box.Screen = mdTabOfSection(given.Property.left(dot));
    } else if (given.Property.startsWith(QLatin1String("ExpertsMeetMOJStandard"))) {
        box.Screen = mdTabOfList(QStringLiteral("experts"));
    } else if (!given.Property.isEmpty()) {
        box.Screen = QStringLiteral("Form Setup");
    } else {
        box.Screen = screenOfFigures(pageOf(forecast, given.Sheet));
    }
}

clsPrintedBox::State stateOf(Box::clsState state)
{
    switch (state) {
    case Box::Smaller: return clsPrintedBox::Smaller;
    case Box::RunsOn: return clsPrintedBox::RunsOn;
    case Box::Cut: break;
    }
    return clsPrintedBox::Cut;
}

} // namespace

std::vector<clsPrintedBox> mdBoxesToCheck(const clsForecast &forecast)
{
    std::vector<clsPrintedBox> boxes;
    boxes.reserve(forecast.Boxes.size());
    for (const Box &given : forecast.Boxes) {
        clsPrintedBox box;
        box.Sheet = given.Sheet;
        box.Placeholder = given.Placeholder;
        box.state = stateOf(given.State);
        place(box, given, forecast);
        boxes.push_back(box);
    }
    return boxes;
}
