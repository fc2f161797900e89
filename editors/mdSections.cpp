#include "editors/mdSections.h"

#include "editors/frmSection.h"
#include "editors/mdScreens.h"

namespace {

struct clsSection {
    const char *text; ///< of the tab, and the section's identity
    const char *screen; ///< the window's name
    clsSectionKind kind;
    const clsScreen &(*table)();
};

constexpr clsSectionKind Shared = clsSectionKind::Shared;
constexpr clsSectionKind New = clsSectionKind::New;

// clang-format off
constexpr clsSection Sections[] = {
    {"Form Setup",                 "frmFormSetup",               Shared, ScreenFormSetup},
    {"Fee Earners / Rates",        "frmFeeEarnerGroups",         Shared, nullptr},
    {"Counsel",                    "frmCounsel",                 Shared, nullptr},
    {"Enhancements",               "frmEnhancements",            Shared, nullptr},
    {"Schedule of Time",           "frmScheduleOfTime",          Shared, nullptr},
    {"Disbursements",              "frmDisbursements",           Shared, nullptr},
    {"Family Advocacy Scheme",     "frmFamilyAdvocacyScheme",    Shared, nullptr},
    {"Communications",             "frmCommunications",          Shared, nullptr},
    {"Client Details",             "frmClientDetails",           New,    ScreenClientDetails},
    {"Solicitor Details",          "frmSolicitorDetails",        New,    ScreenSolicitorDetails},
    {"Previous Advice",            "frmPreviousAdvice",          New,    ScreenPreviousAdvice},
    {"Case Information",           "frmCaseInformation",         New,    ScreenCaseInformation},
    {"Outcome of Case",            "frmOutcomeOfCase",           New,    nullptr},
    {"Late Submission",            "frmLateSubmission",          New,    nullptr},
    {"Nature of Proceedings",      "frmNatureOfProceedings",     New,    nullptr},
    {"Actual Costs",               "frmActualCostsIncurred",     New,    nullptr},
    {"Details of Work",            "frmDetailsOfWork",           New,    nullptr},
    {"Counsel Outstanding Claims", "frmCounselOutstandingClaims", New,   nullptr},
    {"Details of Monies Awarded",  "frmDetailsOfMonies",         New,    nullptr},
    {"Details of Costs Awarded",   "frmDetailsOfCostsAwarded",   New,    nullptr},
    {"Debtor's Details",           "frmDebtorsDetails",          New,    nullptr},
};
// clang-format on

const clsSection *sectionOf(const QString &text)
{
    for (const clsSection &section : Sections)
        if (text == QLatin1String(section.text))
            return &section;
    return nullptr;
}

} // namespace

QDialog *mdCreateScreen(const QString &section, QWidget *parent)
{
    const clsSection *row = sectionOf(section);
    if (!row || !row->table)
        return nullptr;
    auto *screen = new frmSection(row->table(), parent);
    screen->Initialise();
    return screen;
}

QString mdScreenName(const QString &section)
{
    const clsSection *row = sectionOf(section);
    return row ? QString::fromUtf8(row->screen) : QString();
}

QStringList mdSectionTexts()
{
    QStringList texts;
    for (const clsSection &section : Sections)
        texts << QString::fromUtf8(section.text);
    return texts;
}
