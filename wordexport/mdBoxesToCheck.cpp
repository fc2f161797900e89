#include "wordexport/mdBoxesToCheck.h"

#include "wordexport/clsForecast.h"

#include <algorithm>
#include <iterator>

namespace {

using Box = clsForecast::Box;

struct clsScreenRow {
    const char *part; ///< of the claim
    const char *screen; ///< the text of its tab
};

constexpr clsScreenRow Sections[] = {
    {"ClientDetails", "Client Details"},
    {"SolicitorDetails", "Solicitor Details"},
    {"PreviousAdvice", "Previous Advice"},
    {"CaseInformation", "Case Information"},
    {"OutcomeOfCase", "Outcome of Case"},
    {"LateSubmission", "Late Submission"},
    {"NatureOfProceedings", "Nature of Proceedings"},
    {"ActualCostsIncurred", "Actual Costs"},
    {"DetailsOfWork", "Details of Work"},
    {"CounselOutstandingClaims", "Counsel Outstanding Claims"},
    {"DetailsOfCostsAwarded", "Details of Costs Awarded"},
    {"DetailsOfMonies", "Details of Monies Awarded"},
    {"DebtorsDetails", "Debtor's Details"},
};

constexpr clsScreenRow Lists[] = {
    {"schedule", "Schedule of Time"},
    {"disbursements", "Disbursements"},
    {"experts", "Disbursements"},
    {"joint", "Disbursements"},
    {"fas", "Family Advocacy Scheme"},
};

/// The screens that the figures of the pages come from.
constexpr clsScreenRow Pages[] = {
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

/// The page of a sheet as its template names it: "Claim1A P8".
QString pageOf(const clsForecast &forecast, const QString &sheetName)
{
    for (const clsForecast::Sheet &sheet : forecast.Sheets)
        if (sheet.Name == sheetName)
            return QStringLiteral("%1 P%2").arg(sheet.Template.section(u' ', 0, 0)).arg(sheet.Page);
    return {};
}

template <class Rows> QString screenIn(const Rows &rows, const QString &part)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows),
        [&](const clsScreenRow &candidate) { return part == QLatin1String(candidate.part); });
    return row == std::end(rows) ? QString() : QString::fromLatin1(row->screen);
}

void place(clsPrintedBox &box, const Box &given, const clsForecast &forecast)
{
    const qsizetype dot = given.Property.indexOf(u'.');
    box.Property = given.Property.mid(dot + 1);
    if (given.Item > 0) {
        box.Screen = screenIn(Lists, given.List);
        box.List = given.List;
        box.Item = given.Item;
    } else if (given.Row > 0) { // the additional information
        box.Screen = screenIn(Lists, QStringLiteral("schedule"));
        box.List = QStringLiteral("schedule");
        box.Property = QStringLiteral("Description");
    } else if (dot >= 0) {
        box.Screen = screenIn(Sections, given.Property.left(dot));
    } else if (given.Property.startsWith(QLatin1String("ExpertsMeetMOJStandard"))) {
        box.Screen = screenIn(Lists, QStringLiteral("experts"));
    } else if (!given.Property.isEmpty()) {
        box.Screen = QStringLiteral("Form Setup");
    } else {
        box.Screen = screenIn(Pages, pageOf(forecast, given.Sheet));
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
