#include "editors/mdSectionRoutes.h"

namespace {

/// The targets of Prev and Next. `Same` means the same target as in the column before: it doesn't depend on the form
/// type.
struct clsRoute {
    const char *section;
    const char *prevClaim1;
    const char *prevClaim1A;
    const char *nextClaim1;
    const char *nextClaim1A;
};

constexpr char Same[] = "same";
constexpr char Nowhere[] = "";

// clang-format off
constexpr clsRoute Routes[] = {
    {"Client Details",             Nowhere,                      Same,                         "Solicitor Details",          Same},
    {"Solicitor Details",          "Client Details",             Same,                         "Previous Advice",            Same},
    {"Previous Advice",            "Solicitor Details",          Same,                         "Case Information",           "Outcome of Case"},
    {"Case Information",           "Previous Advice",            Same,                         "Outcome of Case",            Same},
    {"Outcome of Case",            "Case Information",           "Previous Advice",            "Late Submission",            "Nature of Proceedings"},
    {"Late Submission",            "Outcome of Case",            Same,                         "Counsel Outstanding Claims", Same},
    {"Nature of Proceedings",      "Outcome of Case",            Same,                         "Actual Costs",               Same},
    {"Actual Costs",               "Nature of Proceedings",      Same,                         "Details of Work",            Same},
    {"Details of Work",            "Counsel Outstanding Claims", "Family Advocacy Scheme",     "Schedule of Time",           Same},
    {"Schedule of Time",           "Details of Work",            Same,                         "Counsel Outstanding Claims", "Communications"},
    {"Counsel Outstanding Claims", "Late Submission",            "Actual Costs",               "Details of Work",            "Disbursements"},
    {"Disbursements",              "Counsel Outstanding Claims", Same,                         "Communications",             "Family Advocacy Scheme"},
    {"Family Advocacy Scheme",     "Disbursements",              Same,                         "Details of Work",            Same},
    {"Communications",             "Disbursements",              "Schedule of Time",           "Details of Costs Awarded",   Same},
    {"Details of Costs Awarded",   "Communications",             Same,                         "Details of Monies Awarded",  "Debtor's Details"},
    {"Details of Monies Awarded",  "Details of Costs Awarded",   Same,                         "Debtor's Details",           Same},
    {"Debtor's Details",           "Details of Monies Awarded",  "Details of Costs Awarded",   Nowhere,                      Same},
};
// clang-format on

/// Chooses a target. The form type matters only if the targets differ: it is compared with the two names, and any other
/// type has no target.
QString target(const char *claim1, const char *claim1A, const QString &formType)
{
    if (claim1A == Same || formType == QLatin1String("Claim1"))
        return QLatin1String(claim1);
    if (formType == QLatin1String("Claim1A"))
        return QLatin1String(claim1A);
    return {};
}

const clsRoute *routeOf(const QString &section)
{
    for (const clsRoute &route : Routes)
        if (section == QLatin1String(route.section))
            return &route;
    return nullptr;
}

} // namespace

QString mdPrevSection(const QString &section, const QString &formType)
{
    const clsRoute *route = routeOf(section);
    return route ? target(route->prevClaim1, route->prevClaim1A, formType) : QString();
}

QString mdNextSection(const QString &section, const QString &formType)
{
    const clsRoute *route = routeOf(section);
    return route ? target(route->nextClaim1, route->nextClaim1A, formType) : QString();
}
