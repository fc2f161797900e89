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

template <class Rows> QString screenIn(const Rows &rows, const QString &part)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows),
        [&](const clsScreenRow &candidate) { return part == QLatin1String(candidate.part); });
    return row == std::end(rows) ? QString() : QString::fromLatin1(row->screen);
}

void place(clsPrintedBox &box, const Box &given)
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
        place(box, given);
        boxes.push_back(box);
    }
    return boxes;
}
