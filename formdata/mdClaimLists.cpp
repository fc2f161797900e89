#include "formdata/mdClaimLists.h"

#include <algorithm>
#include <iterator>

namespace {

// clang-format off
constexpr clsClaimList Lists[] = {
    {"groups",        "Fee Earners / Rates",    "feeearnergroups",     "group",             "reference"},
    {"feeearners",    "Fee Earners / Rates",    "feeearners",          "fee earner",        "reference"},
    {"counsel",       "Counsel",                "counsel",             "counsel",           "name"},
    {"enhancements",  "Enhancements",           "enhancements",        "enhancement",       "name"},
    {"schedule",      "Schedule of Time",       "scheduleoftimeitems", "item",              ""},
    {"disbursements", "Disbursements",          "disbursements",       "disbursement",      "description"},
    {"experts",       "Disbursements",          "expertinvoices",      "expert invoice",    "experttype"},
    {"joint",         "Disbursements",          "jointinstructions",   "joint instruction", "experttype"},
    {"fas",           "Family Advocacy Scheme", "fasitems",            "hearing",           ""},
};

struct clsSectionRow {
    const char *section;
    const char *tab;
};

constexpr clsSectionRow Sections[] = {
    {"ClientDetails",            "Client Details"},
    {"SolicitorDetails",         "Solicitor Details"},
    {"PreviousAdvice",           "Previous Advice"},
    {"CaseInformation",          "Case Information"},
    {"OutcomeOfCase",            "Outcome of Case"},
    {"LateSubmission",           "Late Submission"},
    {"NatureOfProceedings",      "Nature of Proceedings"},
    {"ActualCostsIncurred",      "Actual Costs"},
    {"DetailsOfWork",            "Details of Work"},
    {"CounselOutstandingClaims", "Counsel Outstanding Claims"},
    {"Communications",           "Communications"},
    {"DetailsOfCostsAwarded",    "Details of Costs Awarded"},
    {"DetailsOfMonies",          "Details of Monies Awarded"},
    {"DebtorsDetails",           "Debtor's Details"},
};
// clang-format on

} // namespace

const clsClaimList *mdClaimList(const QString &name)
{
    const auto *list = std::find_if(std::begin(Lists), std::end(Lists),
        [&](const clsClaimList &candidate) { return name == QLatin1String(candidate.name); });
    return list == std::end(Lists) ? nullptr : list;
}

QString mdTabOfSection(const QString &section)
{
    for (const clsSectionRow &row : Sections)
        if (section == QLatin1String(row.section))
            return QString::fromLatin1(row.tab);
    return {};
}

QString mdTabOfList(const QString &list)
{
    const clsClaimList *row = mdClaimList(list);
    return row ? QString::fromLatin1(row->tab) : QString();
}
