#include "editors/mdSections.h"

#include "editors/frmSection.h"
#include "editors/mdScreens.h"

namespace {

struct clsSection {
    const char *text; ///< of the tab, and the section's identity
    const char *screen; ///< the window's name
    const clsScreen &(*table)();
};

// clang-format off
constexpr clsSection Sections[] = {
    {"Form Setup",                 "frmFormSetup",               ScreenFormSetup},
    {"Fee Earners / Rates",        "frmFeeEarnerGroups",         ScreenFeeEarnerGroups},
    {"Counsel",                    "frmCounsel",                 ScreenCounsel},
    {"Enhancements",               "frmEnhancements",            ScreenEnhancements},
    {"Schedule of Time",           "frmScheduleOfTime",          ScreenScheduleOfTime},
    {"Disbursements",              "frmDisbursements",           ScreenDisbursements},
    {"Family Advocacy Scheme",     "frmFamilyAdvocacyScheme",    ScreenFamilyAdvocacyScheme},
    {"Communications",             "frmCommunications",          ScreenCommunications},
    {"Client Details",             "frmClientDetails",           ScreenClientDetails},
    {"Solicitor Details",          "frmSolicitorDetails",        ScreenSolicitorDetails},
    {"Previous Advice",            "frmPreviousAdvice",          ScreenPreviousAdvice},
    {"Case Information",           "frmCaseInformation",         ScreenCaseInformation},
    {"Outcome of Case",            "frmOutcomeOfCase",           ScreenOutcomeOfCase},
    {"Late Submission",            "frmLateSubmission",          ScreenLateSubmission},
    {"Nature of Proceedings",      "frmNatureOfProceedings",     ScreenNatureOfProceedings},
    {"Actual Costs",               "frmActualCostsIncurred",     ScreenActualCostsIncurred},
    {"Details of Work",            "frmDetailsOfWork",           ScreenDetailsOfWork},
    {"Counsel Outstanding Claims", "frmCounselOutstandingClaims", ScreenCounselOutstandingClaims},
    {"Details of Monies Awarded",  "frmDetailsOfMonies",         ScreenDetailsOfMonies},
    {"Details of Costs Awarded",   "frmDetailsOfCostsAwarded",   ScreenDetailsOfCostsAwarded},
    {"Debtor's Details",           "frmDebtorsDetails",          ScreenDebtorsDetails},
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
