#include "editors/mdSections.h"

#include "editors/frmScreen.h"
#include "editors/mdScreens.h"

namespace {

struct clsSection {
    const char *text; ///< the tab's text, which identifies the section
    const clsScreen &(*table)();
};

// clang-format off
constexpr clsSection Sections[] = {
    {"Form Setup",                 ScreenFormSetup},
    {"Fee Earners / Rates",        ScreenFeeEarnerGroups},
    {"Counsel",                    ScreenCounsel},
    {"Enhancements",               ScreenEnhancements},
    {"Schedule of Time",           ScreenScheduleOfTime},
    {"Disbursements",              ScreenDisbursements},
    {"Family Advocacy Scheme",     ScreenFamilyAdvocacyScheme},
    {"Communications",             ScreenCommunications},
    {"Client Details",             ScreenClientDetails},
    {"Solicitor Details",          ScreenSolicitorDetails},
    {"Previous Advice",            ScreenPreviousAdvice},
    {"Case Information",           ScreenCaseInformation},
    {"Outcome of Case",            ScreenOutcomeOfCase},
    {"Late Submission",            ScreenLateSubmission},
    {"Nature of Proceedings",      ScreenNatureOfProceedings},
    {"Actual Costs",               ScreenActualCostsIncurred},
    {"Details of Work",            ScreenDetailsOfWork},
    {"Counsel Outstanding Claims", ScreenCounselOutstandingClaims},
    {"Details of Monies Awarded",  ScreenDetailsOfMonies},
    {"Details of Costs Awarded",   ScreenDetailsOfCostsAwarded},
    {"Debtor's Details",           ScreenDebtorsDetails},
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
    if (!row)
        return nullptr;
    auto *screen = new frmScreen(row->table(), parent);
    screen->Initialise();
    return screen;
}

QString mdScreenName(const QString &section)
{
    const clsSection *row = sectionOf(section);
    return row ? QString::fromUtf8(row->table().name) : QString();
}

const clsScreen *mdScreenOf(const QString &section)
{
    const clsSection *row = sectionOf(section);
    return row ? &row->table() : nullptr;
}

QStringList mdSectionTexts()
{
    QStringList texts;
    for (const clsSection &section : Sections)
        texts << QString::fromUtf8(section.text);
    return texts;
}
