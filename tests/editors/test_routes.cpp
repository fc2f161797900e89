#include "editors/mdSectionRoutes.h"
#include "editors/mdSections.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

namespace {

struct clsWay {
    const char *section;
    const char *prevClaim1;
    const char *prevClaim1A;
    const char *nextClaim1;
    const char *nextClaim1A;
};

// All routes, written by hand.
// clang-format off
const clsWay Ways[] = {
    {"Client Details", "", "", "Solicitor Details", "Solicitor Details"},
    {"Solicitor Details", "Client Details", "Client Details", "Previous Advice", "Previous Advice"},
    {"Previous Advice", "Solicitor Details", "Solicitor Details", "Case Information", "Outcome of Case"},
    {"Case Information", "Previous Advice", "Previous Advice", "Outcome of Case", "Outcome of Case"},
    {"Outcome of Case", "Case Information", "Previous Advice", "Late Submission", "Nature of Proceedings"},
    {"Late Submission", "Outcome of Case", "Outcome of Case", "Counsel Outstanding Claims", "Counsel Outstanding Claims"},
    {"Nature of Proceedings", "Outcome of Case", "Outcome of Case", "Actual Costs", "Actual Costs"},
    {"Actual Costs", "Nature of Proceedings", "Nature of Proceedings", "Details of Work", "Details of Work"},
    {"Details of Work", "Counsel Outstanding Claims", "Family Advocacy Scheme", "Schedule of Time", "Schedule of Time"},
    {"Schedule of Time", "Details of Work", "Details of Work", "Counsel Outstanding Claims", "Communications"},
    {"Counsel Outstanding Claims", "Late Submission", "Actual Costs", "Details of Work", "Disbursements"},
    {"Disbursements", "Counsel Outstanding Claims", "Counsel Outstanding Claims", "Communications", "Family Advocacy Scheme"},
    {"Family Advocacy Scheme", "Disbursements", "Disbursements", "Details of Work", "Details of Work"},
    {"Communications", "Disbursements", "Schedule of Time", "Details of Costs Awarded", "Details of Costs Awarded"},
    {"Details of Costs Awarded", "Communications", "Communications", "Details of Monies Awarded", "Debtor's Details"},
    {"Details of Monies Awarded", "Details of Costs Awarded", "Details of Costs Awarded", "Debtor's Details", "Debtor's Details"},
    {"Debtor's Details", "Details of Monies Awarded", "Details of Costs Awarded", "", ""},
};
// clang-format on

const QString Claim1 = QStringLiteral("Claim1");
const QString Claim1A = QStringLiteral("Claim1A");

} // namespace

TEST(Routes, LeadAsTheTableSaysOnBothFormTypes)
{
    for (const clsWay &way : Ways) {
        const QString section = QString::fromUtf8(way.section);
        EXPECT_EQ(QString::fromUtf8(way.prevClaim1), mdPrevSection(section, Claim1)) << way.section;
        EXPECT_EQ(QString::fromUtf8(way.prevClaim1A), mdPrevSection(section, Claim1A)) << way.section;
        EXPECT_EQ(QString::fromUtf8(way.nextClaim1), mdNextSection(section, Claim1)) << way.section;
        EXPECT_EQ(QString::fromUtf8(way.nextClaim1A), mdNextSection(section, Claim1A)) << way.section;
    }
}

TEST(Routes, AFormOfNeitherTypeGoesOnlyWhereTheTypesAgree)
{
    for (const QString &type : {QString(), QStringLiteral("claim1"), QStringLiteral("Claim2")}) {
        EXPECT_EQ(QString(), mdNextSection(QStringLiteral("Previous Advice"), type));
        EXPECT_EQ(QString(), mdPrevSection(QStringLiteral("Communications"), type));
        EXPECT_EQ(QStringLiteral("Previous Advice"), mdNextSection(QStringLiteral("Solicitor Details"), type));
    }
}

TEST(Routes, EveryTargetIsASectionThatHasAScreen)
{
    const QStringList texts = mdSectionTexts();
    for (const clsWay &way : Ways)
        for (const char *text : {way.section, way.prevClaim1, way.prevClaim1A, way.nextClaim1, way.nextClaim1A})
            EXPECT_TRUE(!*text || texts.contains(QString::fromUtf8(text))) << text;
}

TEST(Routes, ATextWithoutAScreenLeadsNowhere)
{
    EXPECT_EQ(QString(), mdNextSection(QStringLiteral("Form Setup"), Claim1));
    EXPECT_EQ(nullptr, mdCreateScreen(QStringLiteral("client details"), nullptr));
    EXPECT_EQ(nullptr, mdCreateScreen(QString(), nullptr));
}

TEST(Routes, EachTextOpensTheScreenOfItsName)
{
    const std::pair<const char *, const char *> screens[] = {
        {"Form Setup", "frmFormSetup"},
        {"Fee Earners / Rates", "frmFeeEarnerGroups"},
        {"Counsel", "frmCounsel"},
        {"Enhancements", "frmEnhancements"},
        {"Schedule of Time", "frmScheduleOfTime"},
        {"Disbursements", "frmDisbursements"},
        {"Family Advocacy Scheme", "frmFamilyAdvocacyScheme"},
        {"Communications", "frmCommunications"},
        {"Client Details", "frmClientDetails"},
        {"Solicitor Details", "frmSolicitorDetails"},
        {"Previous Advice", "frmPreviousAdvice"},
        {"Case Information", "frmCaseInformation"},
        {"Outcome of Case", "frmOutcomeOfCase"},
        {"Late Submission", "frmLateSubmission"},
        {"Nature of Proceedings", "frmNatureOfProceedings"},
        {"Actual Costs", "frmActualCostsIncurred"},
        {"Details of Work", "frmDetailsOfWork"},
        {"Counsel Outstanding Claims", "frmCounselOutstandingClaims"},
        {"Details of Monies Awarded", "frmDetailsOfMonies"},
        {"Details of Costs Awarded", "frmDetailsOfCostsAwarded"},
        {"Debtor's Details", "frmDebtorsDetails"},
    };
    EXPECT_EQ(std::size(screens), size_t(mdSectionTexts().size()));
    for (const auto &[text, name] : screens)
        EXPECT_EQ(QString::fromUtf8(name), mdScreenName(QString::fromUtf8(text)));
}
