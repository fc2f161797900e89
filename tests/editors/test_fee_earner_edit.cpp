#include "controls/oAllPurposeBox.h"
#include "editors/oFeeEarnerGroupCombo.h"
#include "tests/editors/clsFeeEarnersTest.h"

namespace {

class FeeEarnerEdit : public clsFeeEarnersTest {
protected:
    static std::unique_ptr<frmScreen> edit(clsXMLRecord *item)
    {
        return clsFeeEarnersTest::edit(ScreenFeeEarnerEdit(), item);
    }
};

} // namespace

TEST_F(FeeEarnerEdit, ANewOneIsMadeAtSaveInTheChosenGroup)
{
    addGroup("PTR");
    const auto solicitor = addGroup("SOL");
    const auto screen = edit(nullptr);
    EXPECT_EQ(QStringLiteral("PTR"), screen->Box<QComboBox>("cmbGroup").currentText());
    type(screen->Box("txtReference"), QStringLiteral("JH"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    ASSERT_EQ(1u, Form->FeeEarnersCollection().size());
    const auto feeEarner = Form->FeeEarner(1);
    EXPECT_EQ(QStringLiteral("JH"), feeEarner->Reference());
    EXPECT_EQ(solicitor->UniqueID(), feeEarner->GroupUniqueID());
    EXPECT_EQ(QStringLiteral("SOL"), feeEarner->GroupReference());
    EXPECT_EQ(1, feeEarner->OrderID());
}

TEST_F(FeeEarnerEdit, AnExistingOneIsShownAndMovesToAnotherGroup)
{
    const auto partner = addGroup("PTR");
    const auto solicitor = addGroup("SOL");
    const auto feeEarner = addFeeEarner(QStringLiteral("JH"), *solicitor);
    feeEarner->Calls = 4;
    const auto screen = edit(feeEarner.get());
    EXPECT_EQ(QStringLiteral("JH"), screen->Box<oAllPurposeBox>("txtReference").Text());
    EXPECT_EQ(QStringLiteral("SOL"), screen->Box<QComboBox>("cmbGroup").currentText());
    QTest::keyClick(&screen->Box("cmbGroup"), Qt::Key_Up);
    press(*screen, "cmdSave");
    EXPECT_EQ(partner->UniqueID(), feeEarner->GroupUniqueID());
    EXPECT_EQ(4, feeEarner->Calls());
    EXPECT_EQ(1u, Form->FeeEarnersCollection().size());
}

TEST_F(FeeEarnerEdit, OneOfAGroupThatIsMissingKeepsWhatItSaysUntilAnotherIsChosen)
{
    const auto partner = addGroup("PTR");
    const auto feeEarner = addFeeEarner(QStringLiteral("JH"), *partner);
    feeEarner->GroupUniqueID = QStringLiteral("ID99");
    const auto screen = edit(feeEarner.get());
    EXPECT_EQ(QString(), screen->Box<QComboBox>("cmbGroup").currentText());
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("ID99"), feeEarner->GroupUniqueID());
    const auto again = edit(feeEarner.get());
    QTest::keyClick(&again->Box("cmbGroup"), Qt::Key_Down);
    press(*again, "cmdSave");
    EXPECT_EQ(partner->UniqueID(), feeEarner->GroupUniqueID());
}

TEST_F(FeeEarnerEdit, WithoutAReferenceItIsNotSaved)
{
    addGroup("PTR");
    const auto screen = edit(nullptr);
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
    EXPECT_EQ(QStringLiteral("txtReference"), focusedName(*screen));
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
}

TEST_F(FeeEarnerEdit, CancelLeavesEverythingWithoutAQuestion)
{
    addGroup("PTR");
    const auto solicitor = addGroup("SOL");
    const auto feeEarner = addFeeEarner(QStringLiteral("JH"), *solicitor);
    const auto screen = edit(feeEarner.get());
    type(screen->Box("txtReference"), QStringLiteral("changed"));
    QTest::keyClick(&screen->Box("cmbGroup"), Qt::Key_Up);
    press(*screen, "cmdCancel");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("JH"), feeEarner->Reference());
    EXPECT_EQ(solicitor->UniqueID(), feeEarner->GroupUniqueID());
}

TEST_F(FeeEarnerEdit, OffersNoNoneAndChecksNoSpelling)
{
    addGroup("PTR");
    const auto screen = edit(nullptr);
    const auto &reference = screen->Box<oAllPurposeBox>("txtReference");
    EXPECT_FALSE(reference.SpellCheck());
    EXPECT_TRUE(reference.AllowReplacements());
    EXPECT_EQ(0, reference.CharacterAllowance());
    EXPECT_FALSE(screen->Box<oFeeEarnerGroupCombo>("cmbGroup").ShowNoneOption());
    EXPECT_EQ(1, screen->Box<QComboBox>("cmbGroup").count());
}
