#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "controls/oFrame.h"
#include "controls/oLeftRightButton.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsScreenTest.h"

#include <QComboBox>

namespace {

class FormSetup : public clsScreenTest {
protected:
    static std::unique_ptr<frmScreen> setup() { return opened(QStringLiteral("Form Setup")); }
    static oCheckBox &tick(const frmScreen &screen, const char *name) { return screen.Box<oCheckBox>(name); }
    static QComboBox &type(const frmScreen &screen) { return screen.Box<QComboBox>("cmbFormType"); }
    static bool lastPagesEnabled(const frmScreen &screen)
    {
        const bool enabled = screen.Box("chkIncludePage11").isEnabled();
        for (const char *page : {"chkIncludePage12", "chkIncludePage13"})
            EXPECT_EQ(enabled, screen.Box(page).isEnabled());
        return enabled;
    }
};

} // namespace

TEST_F(FormSetup, OffersTheTwoFormTypesAndShowsTheClaims)
{
    auto screen = setup();
    ASSERT_EQ(2, type(*screen).count());
    EXPECT_EQ(QStringLiteral("Claim1"), type(*screen).itemText(0));
    EXPECT_EQ(QStringLiteral("Claim1A"), type(*screen).itemText(1));
    EXPECT_EQ(QStringLiteral("Claim1"), type(*screen).currentText());
    Form->FormType = QStringLiteral("Claim1A");
    screen = setup();
    EXPECT_EQ(QStringLiteral("Claim1A"), type(*screen).currentText());
}

TEST_F(FormSetup, HasOneButtonAndNoWayToOtherSections)
{
    const auto screen = setup();
    EXPECT_FALSE(screen->findChild<oLeftRightButton *>());
    QStringList buttons;
    for (const oCustomButton *button : screen->findChildren<oCustomButton *>())
        buttons << button->objectName() + u' ' + button->Caption();
    EXPECT_EQ(QStringList {QStringLiteral("cmdClose Close")}, buttons);
}

TEST_F(FormSetup, OpensInAConsistentState)
{
    for (const bool vat : {false, true}) {
        for (const char *formType : {"Claim1", "Claim1A"}) {
            Form->VAT = vat;
            Form->FormType = QString::fromUtf8(formType);
            const auto screen = setup();
            EXPECT_EQ(vat, screen->Box("txtVATRate").isEnabled());
            EXPECT_EQ(QByteArray(formType) == "Claim1A", lastPagesEnabled(*screen));
        }
    }
}

TEST_F(FormSetup, ChangingTheTypeOpensAndClosesTheLastThreePagesAndNoOthers)
{
    const auto screen = setup();
    EXPECT_FALSE(lastPagesEnabled(*screen));
    QTest::keyClick(&type(*screen), Qt::Key_Down);
    EXPECT_TRUE(lastPagesEnabled(*screen));
    EXPECT_TRUE(screen->Box("chkIncludePage10").isEnabled());
    QTest::keyClick(&type(*screen), Qt::Key_Up);
    EXPECT_FALSE(lastPagesEnabled(*screen));
    EXPECT_TRUE(screen->Box("chkIncludePage10").isEnabled());
}

TEST_F(FormSetup, AGreyedTickIsKeptAndStored)
{
    Form->IncludePage11 = false;
    Form->IncludePage12 = true;
    auto screen = setup();
    EXPECT_FALSE(screen->Box("chkIncludePage12").isEnabled());
    EXPECT_TRUE(tick(*screen, "chkIncludePage12").Checked());
    press(*screen, "cmdClose");
    EXPECT_TRUE(Form->IncludePage12());
    EXPECT_FALSE(Form->IncludePage11());
    // A box that is changed and then disabled is stored with its last value.
    Form->FormType = QStringLiteral("Claim1A");
    screen = setup();
    QTest::mouseClick(&screen->Box("chkIncludePage11"), Qt::LeftButton, {}, QPoint(12, 12));
    QTest::keyClick(&type(*screen), Qt::Key_Up);
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("Claim1"), Form->FormType());
    EXPECT_TRUE(Form->IncludePage11());
}

TEST_F(FormSetup, UntickingVATKeepsTheRateAndStoresIt)
{
    Form->VATRate = QStringLiteral("20.00");
    const auto screen = setup();
    EXPECT_TRUE(screen->Box("txtVATRate").isEnabled());
    QTest::mouseClick(&screen->Box("chkVAT"), Qt::LeftButton, {}, QPoint(12, 12));
    EXPECT_FALSE(screen->Box("txtVATRate").isEnabled());
    EXPECT_EQ(QStringLiteral("20.00"), screen->Box<oDecimalBox>("txtVATRate").Text());
    press(*screen, "cmdClose");
    EXPECT_FALSE(Form->VAT());
    EXPECT_EQ(QStringLiteral("20.00"), Form->VATRate());
}

TEST_F(FormSetup, PageOneIsTickedAndDisabledForGood)
{
    Form->IncludePage1 = false;
    const auto screen = setup();
    EXPECT_TRUE(tick(*screen, "chkIncludePage1").Checked());
    EXPECT_FALSE(screen->Box("chkIncludePage1").isEnabled());
    QTest::keyClick(&type(*screen), Qt::Key_Down);
    EXPECT_FALSE(screen->Box("chkIncludePage1").isEnabled());
    press(*screen, "cmdClose");
    EXPECT_TRUE(Form->IncludePage1());
}

TEST_F(FormSetup, TheTicksAreIndependentOfEachOther)
{
    const auto screen = setup();
    for (const char *name :
        {"chkCostsAssessedByLSC", "chkCostsAssessedByCourt", "chkExceptionalCaseFunding", "chkMentalHealth", "chkVHCC"})
        QTest::mouseClick(&screen->Box(name), Qt::LeftButton, {}, QPoint(12, 12));
    press(*screen, "cmdClose");
    EXPECT_TRUE(Form->CostsAssessedByLSC() && Form->CostsAssessedByCourt() && Form->ExceptionalCaseFunding()
        && Form->MentalHealth() && Form->VHCC());
}

TEST_F(FormSetup, EscPressesCloseAndTheCloseBoxLeavesWithoutStoring)
{
    auto screen = setup();
    clsScreenTest::type(screen->Box("txtStageNumber"), QStringLiteral("2"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("2"), Form->StageNumber());
    screen = setup();
    clsScreenTest::type(screen->Box("txtStageNumber"), QStringLiteral("3"));
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("2"), Form->StageNumber());
}

TEST_F(FormSetup, ABadRateHoldsCloseAndEscButNotTheCloseBox)
{
    const auto screen = setup();
    clsScreenTest::type(screen->Box("txtVATRate"), QStringLiteral("abc"));
    press(*screen, "cmdClose");
    EXPECT_TRUE(screen->isVisible());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(screen->isVisible());
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("17.50"), Form->VATRate());
}

TEST_F(FormSetup, AChangeOfTypeDeletesNothing)
{
    Form->CaseInformation.NameOfCourt = QStringLiteral("Leeds");
    const auto screen = setup();
    QTest::keyClick(&type(*screen), Qt::Key_Down);
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("Claim1A"), Form->FormType());
    EXPECT_EQ(QStringLiteral("Leeds"), Form->CaseInformation.NameOfCourt());
}

TEST_F(FormSetup, AnUnknownTypeIsShownAsNoneAndLeftAlone)
{
    Form->FormType = QStringLiteral("Claim2");
    const auto screen = setup();
    EXPECT_EQ(-1, type(*screen).currentIndex());
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("Claim2"), Form->FormType());
}

TEST_F(FormSetup, TheCaptionOfADisabledFieldIsPale)
{
    const auto screen = setup();
    for (const clsScreenField &field : screen->Fields())
        if (field.label) {
            EXPECT_EQ(field.control->isEnabled(), field.label->isEnabled()) << field.row->control;
        }
    EXPECT_FALSE(screen->Fields()[11].label->isEnabled());
}

TEST_F(FormSetup, ThePagesStandInFiveColumnsAndTheRateBesideItsTick)
{
    const auto screen = setup();
    const auto at = [&screen](const char *name) { return screen->Box(name).mapTo(screen.get(), QPoint()); };
    EXPECT_EQ(at("chkIncludePage1").y(), at("chkIncludePage5").y());
    EXPECT_LT(at("chkIncludePage5").y(), at("chkIncludePage6").y());
    EXPECT_EQ(at("chkIncludePage1").x(), at("chkIncludePage6").x());
    EXPECT_EQ(at("chkIncludePage3").x(), at("chkIncludePage13").x());
    const QRect tick(at("chkVAT"), screen->Box("chkVAT").size());
    const QRect rate(at("txtVATRate"), screen->Box("txtVATRate").size());
    EXPECT_LT(tick.right(), rate.left());
    EXPECT_LE(qAbs(tick.center().y() - rate.center().y()), 1);
}

TEST_F(FormSetup, ThePagesAndTheNotesAreReachedByTheLettersOfTheirFrames)
{
    const auto screen = setup();
    const auto press = [&screen](const char *frame) {
        const QString caption = screen->findChild<oFrame *>(QString::fromUtf8(frame))->MarkedCaption();
        const qsizetype mark = caption.indexOf(u'&');
        ASSERT_GE(mark, 0) << frame;
        QTest::keyClick(screen.get(), caption[mark + 1].toLower().toLatin1(), Qt::AltModifier);
    };
    // Page 1 is always disabled.
    press("bgPages");
    EXPECT_EQ(QStringLiteral("chkIncludePage2"), focusedName(*screen));
    EXPECT_TRUE(screen->Box<oCheckBox>("chkIncludePage2").Checked()) << "leads there and ticks nothing";
    press("bxNotes");
    EXPECT_EQ(QStringLiteral("txtNotes"), focusedName(*screen));
    // The captions of fields have letters, those of their frames have none.
    EXPECT_EQ(QString(), screen->findChild<oFrame *>(QStringLiteral("bxGeneral"))->MarkedCaption());
    EXPECT_EQ(QString(), screen->findChild<oFrame *>(QStringLiteral("bxHeaders"))->MarkedCaption());
    // A box with invalid input keeps the focus.
    clsScreenTest::type(screen->Box("txtVATRate"), QStringLiteral("x"));
    press("bxNotes");
    EXPECT_EQ(QStringLiteral("txtVATRate"), focusedName(*screen));
}
