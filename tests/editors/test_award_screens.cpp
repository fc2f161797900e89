#include "controls/oAllPurposeBox.h"
#include "controls/oFrame.h"
#include "controls/oLeftRightButton.h"
#include "tests/editors/clsRecordTest.h"

// Costs, money and property awarded, and who owes them.

namespace {

const QString CostsAwarded = QStringLiteral("Details of Costs Awarded");
const QString Debtor = QStringLiteral("Debtor's Details");

const char *const Amounts[] = {"txtPreCertificateCosts", "txtDuringCertificateCostsLSC",
    "txtDuringCertificateCostsMarketRates", "txtTotalCostsAwarded", "txtLegalHelpInPreCertificateCostsAmount",
    "txtInterestOnAllCosts", "txtAmountRecoveredToDate", "txtDeterminationAmount"};

class AwardScreens : public clsRecordTest {
protected:
    static QStringList amounts(const frmScreen &screen)
    {
        QStringList result;
        for (const char *box : Amounts)
            result << textOf(screen, box);
        return result;
    }
};

} // namespace

TEST_F(AwardScreens, NoAmountIsAddedUpFromTheOthersNorChangesThem)
{
    const auto screen = opened(CostsAwarded);
    QStringList expected(int(std::size(Amounts)));
    for (int i = 0; i < expected.size(); ++i) {
        type(screen->Box(Amounts[i]), QString::number(100 + i));
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
        expected[i] = QString::number(100 + i) + QStringLiteral(".00");
        EXPECT_EQ(expected, amounts(*screen)) << Amounts[i];
    }
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("103.00"), Form->DetailsOfCostsAwarded.TotalCostsAwarded());
    EXPECT_EQ(QStringLiteral("100.00"), Form->DetailsOfCostsAwarded.PreCertificateCosts());
}

TEST_F(AwardScreens, TheFramesThatOnlyKeepTheOrderHaveNoCaption)
{
    const auto screen = opened(CostsAwarded);
    QStringList captions;
    for (const char *name : {"bxGeneral", "bxClaim1A", "oFrame1", "oFrame2"}) {
        const auto *frame = screen->findChild<oFrame *>(QString::fromUtf8(name));
        ASSERT_TRUE(frame) << name;
        captions << frame->Caption();
    }
    EXPECT_EQ(QStringList({CostsAwarded, QStringLiteral("Claim1A Only"), QString(), QString()}), captions);
}

TEST_F(AwardScreens, WhatHangsOnAnAnswerStaysOpenWhateverItIs)
{
    for (const char *section : {"Details of Costs Awarded", "Details of Monies Awarded", "Debtor's Details"})
        expectAllOpen(section);
}

TEST_F(AwardScreens, EachQuestionOfTheCostsIsAPairOfItsOwn)
{
    const char *const pairs[] = {"LegalHelpInPreCertificateCosts", "Leave", "Determination", "OfferByDebtor"};
    const auto screen = opened(CostsAwarded);
    const auto state = [&] {
        QString result;
        for (const char *question : pairs)
            for (const char *answer : {"Yes", "No"})
                result += ticked(*screen, qPrintable(QStringLiteral("chk%1%2").arg(question, answer))) ? u'x' : u'-';
        return result;
    };
    QString expected(8, u'-');
    for (int i = 0; i < 4; ++i) {
        click(*screen, qPrintable(QStringLiteral("chk%1Yes").arg(pairs[i])));
        expected[2 * i] = u'x';
        EXPECT_EQ(expected, state());
        click(*screen, qPrintable(QStringLiteral("chk%1No").arg(pairs[i])));
        expected[2 * i] = u'-';
        expected[2 * i + 1] = u'x';
        EXPECT_EQ(expected, state());
    }
}

TEST_F(AwardScreens, ADebtorCanBeEmployedAndUnemployedAtOnceAndLegallyAidedAndNot)
{
    auto screen = opened(Debtor);
    for (const char *box :
        {"chkEmployed", "chkSelfEmployed", "chkUnemployed", "chkDebtorCLSFundedYes", "chkDebtorCLSFundedNo"})
        click(*screen, box);
    press(*screen, "cmdSave");
    EXPECT_TRUE(Form->DebtorsDetails.Employed());
    EXPECT_TRUE(Form->DebtorsDetails.SelfEmployed());
    EXPECT_TRUE(Form->DebtorsDetails.UnEmployed());
    EXPECT_TRUE(Form->DebtorsDetails.DebtorCLSFundedYes());
    EXPECT_TRUE(Form->DebtorsDetails.DebtorCLSFundedNo());
    // They are shown the same way again.
    screen = opened(Debtor);
    EXPECT_TRUE(ticked(*screen, "chkEmployed"));
    EXPECT_TRUE(ticked(*screen, "chkUnemployed"));
    EXPECT_TRUE(ticked(*screen, "chkDebtorCLSFundedYes"));
    EXPECT_TRUE(ticked(*screen, "chkDebtorCLSFundedNo"));
}

TEST_F(AwardScreens, TheLastScreenLeadsBackOnly)
{
    for (const char *type : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromUtf8(type);
        const auto screen = created(Debtor);
        const auto *switcher = screen->findChild<oLeftRightButton *>(QStringLiteral("oFormSwitcher"));
        EXPECT_TRUE(switcher->LeftEnabled());
        EXPECT_FALSE(switcher->RightEnabled());
        for (const char *section : {"Details of Costs Awarded", "Details of Monies Awarded"}) {
            const auto other = created(QString::fromUtf8(section));
            EXPECT_TRUE(other->findChild<oLeftRightButton *>(QStringLiteral("oFormSwitcher"))->RightEnabled());
        }
    }
}

TEST_F(AwardScreens, ATextThatIsTooLongIsCountedInRedAndStoredWhole)
{
    const QString text(62, u'x');
    const auto screen = opened(Debtor);
    EXPECT_EQ(QStringLiteral("60"), countOf(*screen, "txtAddress").text());
    type(screen->Box("txtAddress"), text);
    EXPECT_EQ(QStringLiteral("2"), countOf(*screen, "txtAddress").text());
    EXPECT_EQ(QColor(177, 17, 22), colourOf(countOf(*screen, "txtAddress")));
    press(*screen, "cmdSave");
    EXPECT_EQ(text, Form->DebtorsDetails.Address());
}

TEST_F(AwardScreens, TheTwoAddressesOfTheDebtorAreDifferentOnes)
{
    const auto screen = opened(Debtor);
    type(screen->Box("txtAddress"), QStringLiteral("1 Oak Lane"));
    type(screen->Box("txtEmployersAddress"), QStringLiteral("2 Ash Road"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("1 Oak Lane"), Form->DebtorsDetails.Address());
    EXPECT_EQ(QStringLiteral("2 Ash Road"), Form->DebtorsDetails.EmployersAddress());
}
