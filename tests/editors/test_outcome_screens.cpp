#include "tests/editors/clsRecordTest.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>

// The outcome of the case, the proceedings and the work.

namespace {

struct clsList {
    const char *control;
    clsXMLField *(*field)();
    QStringList codes; ///< by index, which is what files store
};

QStringList split(const char *text)
{
    return QString::fromUtf8(text).split(u' ');
}

// Written by hand: files store the index, so a later version must not move an entry.
// clang-format off
const clsList Lists[] = {
    {"cmbStageOfCaseEnd", [] { return Form->OutcomeOfCase.field(u"StageOfCaseEnd"); },
     split("- A B C D E1 E2 F1 F2 G H I1 I2 J K L M")},
    {"cmbHowDidCaseEnd", [] { return Form->OutcomeOfCase.field(u"HowDidCaseEnd"); }, split("- A B C D E F G H I")},
    {"cmbResult", [] { return Form->OutcomeOfCase.field(u"Result"); },
     split("- A B C D E F G H I J K L M N O P Q R")},
    {"cmbADRProposed", [] { return Form->OutcomeOfCase.field(u"ADRProposed"); }, split("- A B C D E F G H I J")},
    {"cmbPublicBenefitsAchieved", [] { return Form->OutcomeOfCase.field(u"PublicBenefitsAchieved"); }, split("- P N")},
};
// clang-format on

const QString Outcome = QStringLiteral("Outcome of Case");

class OutcomeScreens : public clsRecordTest {
protected:
    static QComboBox &list(const frmScreen &screen, const char *name) { return screen.Box<QComboBox>(name); }
};

} // namespace

TEST_F(OutcomeScreens, ANewClaimShowsNoSelectionOnAllFiveListsWithItsLeadingBlank)
{
    const auto screen = opened(Outcome);
    for (const clsList &row : Lists) {
        EXPECT_EQ(0, list(*screen, row.control).currentIndex()) << row.control;
        EXPECT_EQ(QStringLiteral(" No Selection"), list(*screen, row.control).currentText()) << row.control;
    }
}

TEST_F(OutcomeScreens, EachPlaceOfAListKeepsItsCode)
{
    const auto screen = opened(Outcome);
    for (const clsList &row : Lists) {
        const QComboBox &found = list(*screen, row.control);
        ASSERT_EQ(row.codes.size(), found.count()) << row.control;
        for (int place = 1; place < found.count(); ++place)
            EXPECT_EQ(row.codes[place], found.itemText(place).section(u')', 0, 0)) << row.control;
    }
}

TEST_F(OutcomeScreens, EachListIsStoredByItsPlaceFromTheFirstToTheLast)
{
    for (const clsList &row : Lists) {
        for (const int place : {1, int(row.codes.size()) - 1, 0}) {
            auto screen = opened(Outcome);
            QTest::keyClick(&list(*screen, row.control), Qt::Key_Home);
            for (int step = 0; step < place; ++step)
                QTest::keyClick(&list(*screen, row.control), Qt::Key_Down);
            press(*screen, "cmdSave");
            EXPECT_EQ(place, row.field()->readLong()) << row.control;
            EXPECT_EQ(place, list(*created(Outcome), row.control).currentIndex()) << row.control;
            for (const clsList &other : Lists)
                EXPECT_EQ(&other == &row ? place : 0, other.field()->readLong()) << other.control;
        }
    }
}

TEST_F(OutcomeScreens, AClosedListThatCutsItsTextHasItWholeInTheTooltipAndWhenOpened)
{
    const auto screen = opened(Outcome);
    QComboBox &stage = list(*screen, "cmbStageOfCaseEnd");
    stage.setCurrentIndex(6);
    const int text = stage.fontMetrics().horizontalAdvance(stage.currentText());
    ASSERT_GT(text, stage.width());
    const QPoint middle = stage.rect().center();
    QHelpEvent help(QEvent::ToolTip, middle, stage.mapToGlobal(middle));
    QApplication::sendEvent(&stage, &help);
    EXPECT_EQ(stage.currentText(), QToolTip::text());
    QToolTip::hideText();
    stage.showPopup();
    ASSERT_TRUE(QTest::qWaitFor([&] { return stage.view()->isVisible(); }));
    EXPECT_GT(stage.view()->viewport()->width(), text);
    EXPECT_GE(stage.view()->viewport()->width(), stage.view()->sizeHintForColumn(0));
    EXPECT_TRUE(screen->screen()->availableGeometry().contains(stage.view()->window()->geometry()));
    stage.hidePopup();
}

TEST_F(OutcomeScreens, WhatWasAwardedIsIndependentAndTheWastedCostsArePaired)
{
    const auto screen = opened(Outcome);
    for (const char *box : {"chkCosts", "chkDamages", "chkProperty", "chkWastedCostsOrderYes", "chkWastedCostsOrderNo"})
        click(*screen, box);
    press(*screen, "cmdSave");
    EXPECT_TRUE(Form->OutcomeOfCase.Costs());
    EXPECT_TRUE(Form->OutcomeOfCase.Damages());
    EXPECT_TRUE(Form->OutcomeOfCase.Property());
    EXPECT_FALSE(Form->OutcomeOfCase.WastedCostsOrderYes());
    EXPECT_TRUE(Form->OutcomeOfCase.WastedCostsOrderNo());
}

TEST_F(OutcomeScreens, TheFramesOfOneFormTypeAreHintsAndCloseNothing)
{
    for (const char *section : {"Outcome of Case", "Late Submission", "Nature of Proceedings", "Details of Work",
             "Counsel Outstanding Claims"})
        expectAllOpen(section);
}

TEST_F(OutcomeScreens, TheExplanationShowsFourHundredInGreenWhileItIsEmpty)
{
    const auto screen = opened(QStringLiteral("Late Submission"));
    EXPECT_EQ(QStringLiteral("(400)"), countOf(*screen, "txtExplanation").text());
    EXPECT_EQ(QColor(0, 127, 62), colourOf(countOf(*screen, "txtExplanation")));
}

TEST_F(OutcomeScreens, ATextThatRunsOverIsCountedInBlueAndStoredWhole)
{
    const QString text(405, u'x');
    const auto screen = opened(QStringLiteral("Late Submission"));
    type(screen->Box("txtExplanation"), text);
    EXPECT_EQ(QStringLiteral("(5)"), countOf(*screen, "txtExplanation").text());
    EXPECT_EQ(QColor(0, 114, 188), colourOf(countOf(*screen, "txtExplanation")));
    type(screen->Box("txtDate"), QStringLiteral("3.4.21"));
    press(*screen, "cmdSave");
    EXPECT_EQ(text, Form->LateSubmission.Explanation());
    EXPECT_EQ(QStringLiteral("03/04/21"), Form->LateSubmission.dDate());
}

TEST_F(OutcomeScreens, ACaseCanBeOfAllFiveKinds)
{
    const auto screen = opened(QStringLiteral("Nature of Proceedings"));
    for (const char *box : {"chkCareAndSupervision", "chkOtherPublicLawChildren", "chkPrivateLawChildren", "chkFinance",
             "chkDomesticAbuse", "chkOtherProvidersNo", "chkOtherProvidersYes", "chkChangeOfSolicitorHalfFeeNo"})
        click(*screen, box);
    press(*screen, "cmdSave");
    const clsZR3NatureOfProceedings &stored = Form->NatureOfProceedings;
    EXPECT_TRUE(stored.CareAndSupervision());
    EXPECT_TRUE(stored.OtherPubicLawChildren());
    EXPECT_TRUE(stored.PrivateLawChildren());
    EXPECT_TRUE(stored.Finance());
    EXPECT_TRUE(stored.DomesticAbuse());
    // Each of the two questions has its own pair.
    EXPECT_TRUE(stored.OtherProvidersYes());
    EXPECT_FALSE(stored.OtherProvidersNo());
    EXPECT_FALSE(stored.ChangeOfSolicitorHalfFeeYes());
    EXPECT_TRUE(stored.ChangeOfSolicitorHalfFeeNo());
}

TEST_F(OutcomeScreens, TheClaimsOfCounselArePaidOrNotOrUnanswered)
{
    const auto screen = opened(QStringLiteral("Counsel Outstanding Claims"));
    click(*screen, "chkOutstandingClaimsYes");
    click(*screen, "chkOutstandingClaimsNo");
    EXPECT_FALSE(ticked(*screen, "chkOutstandingClaimsYes"));
    EXPECT_TRUE(ticked(*screen, "chkOutstandingClaimsNo"));
    click(*screen, "chkOutstandingClaimsNo");
    press(*screen, "cmdSave");
    EXPECT_FALSE(Form->CounselOutstandingClaims.OutstandingClaimsYes());
    EXPECT_FALSE(Form->CounselOutstandingClaims.OutstandingClaimsNo());
}

TEST_F(OutcomeScreens, TheFrameIsTheCaptionOfTheWorkAndIsReadOut)
{
    const auto screen = opened(QStringLiteral("Details of Work"));
    EXPECT_EQ(QStringLiteral("Details of Work Being Claimed"), screen->Box("txtDetailsOfCase").accessibleName());
    EXPECT_EQ(QStringLiteral("(770)"), countOf(*screen, "txtDetailsOfCase").text());
    EXPECT_EQ(QStringLiteral("(710)"), countOf(*screen, "txtDetailsOfEnhancement").text());
}
