#include "controls/oBoxNote.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "tests/editors/clsRecordTest.h"

#include <set>

// Actual costs: one choice out of several, and the amounts that come from the bill.

namespace {

const QString ActualCosts = QStringLiteral("Actual Costs");

/// The groups of ticks on the screen; a tick clears the others of its group.
const std::vector<std::vector<const char *>> Choices {
    {"chkCareAndSupervisionMidlands", "chkCareAndSupervisionNorth", "chkCareAndSupervisionSouth",
        "chkCareAndSupervisionWales"},
    {"chkCareAndSupervisionAChild", "chkCareAndSupervisionAParent", "chkCareAndSupervisionJoined"},
    {"chkCareAndSupervisionActing1", "chkCareAndSupervisionActing2OrMore"},
    {"chkCareAndSupervisionCourtHigh", "chkCareAndSupervisionCourtCounty",
        "chkCareAndSupervisionCourtFamilyProceeding"},
    {"chkPrivateLawLondon", "chkPrivateLawNonLondon"},
    {"chkPrivateLawPreviousClaimYes", "chkPrivateLawPreviousClaimNo"},
    {"chkPrivateLawCourtHigh", "chkPrivateLawCourtCounty", "chkPrivateLawCourtFamilyProceeding"},
    {"chkPrivateLawSettlementFeeYes", "chkPrivateLawSettlementFeeNo"},
    {"chkPrivateLawLevel3", "chkPrivateLawLevel4", "chkPrivateLawEnforcement"},
    {"chkExceptionalCaseYes", "chkExceptionalCaseNo"},
};

struct clsGroup {
    const char *button;
    const char *profitCosts;
    const char *VAT;
};

const clsGroup Care {
    "cmdCASLoadFromScheduleOfTime", "txtCareAndSupervisionProfitCosts", "txtCareAndSupervisionProfitCostsVAT"};
const clsGroup PrivateLaw {"cmdPLCLoadFromScheduleOfTime", "txtPrivateLawProfitCosts", "txtPrivateLawProfitCostsVAT"};

class ActualCostsScreen : public clsRecordTest {
protected:
    void SetUp() override
    {
        clsRecordTest::SetUp();
        Form->FormType = QStringLiteral("Claim1A");
    }
    static std::set<std::string> allTicked(const frmScreen &screen)
    {
        std::set<std::string> result;
        for (const clsScreenField &field : screen.Fields())
            if (const auto *tick = qobject_cast<oCheckBox *>(field.control); tick && tick->Checked())
                result.insert(field.row->control);
        return result;
    }
    static std::pair<QString, QString> amounts(const frmScreen &screen, const clsGroup &group)
    {
        return {textOf(screen, group.profitCosts), textOf(screen, group.VAT)};
    }
    static std::pair<QString, QString> pair(const char *profitCosts, const char *VAT)
    {
        return {QString::fromLatin1(profitCosts), QString::fromLatin1(VAT)};
    }

    /// An hour at 33.33, and half an hour of advocacy at 50.00: 58.33, of which 25.00 is advocacy.
    static void addBill()
    {
        const auto group = Form->AddFeeEarnerGroup();
        group->HourlyRate = QStringLiteral("33.33");
        group->AdvocacyRate = QStringLiteral("50.00");
        const auto feeEarner = Form->AddFeeEarner();
        feeEarner->GroupUniqueID = group->UniqueID();
        const auto work = Form->AddScheduleOfTimeItem();
        work->FeeEarnerUniqueID = feeEarner->UniqueID();
        work->Code = QStringLiteral("ACT");
        work->TTime = QStringLiteral("1:00");
        const auto advocacy = Form->AddScheduleOfTimeItem();
        advocacy->FeeEarnerUniqueID = feeEarner->UniqueID();
        advocacy->Code = QStringLiteral("ADV");
        advocacy->Advocacy = true;
        advocacy->TTime = QStringLiteral("0:30");
    }
};

} // namespace

TEST_F(ActualCostsScreen, TickingOneOfAChoiceClearsTheOthersOfItAndNothingElse)
{
    const auto screen = opened(ActualCosts);
    std::set<std::string> chosen;
    size_t boxes = 0;
    for (const auto &choice : Choices) {
        boxes += choice.size();
        click(*screen, choice.front());
        chosen.insert(choice.front());
    }
    // Every tick of the screen belongs to a group.
    size_t ticks = 0;
    for (const clsScreenField &field : screen->Fields())
        ticks += qobject_cast<oCheckBox *>(field.control) ? 1 : 0;
    EXPECT_EQ(ticks, boxes);
    EXPECT_EQ(chosen, allTicked(*screen));
    for (const auto &choice : Choices) {
        for (size_t i = 1; i < choice.size(); ++i) {
            click(*screen, choice[i]);
            chosen.erase(choice[i - 1]);
            chosen.insert(choice[i]);
            EXPECT_EQ(chosen, allTicked(*screen)) << choice[i];
        }
    }
}

TEST_F(ActualCostsScreen, WalesClearsNorthAndUntickingItLeavesNoRegion)
{
    const auto screen = opened(ActualCosts);
    click(*screen, "chkCareAndSupervisionNorth");
    click(*screen, "chkCareAndSupervisionWales");
    EXPECT_EQ(std::set<std::string> {"chkCareAndSupervisionWales"}, allTicked(*screen));
    click(*screen, "chkCareAndSupervisionWales");
    EXPECT_TRUE(allTicked(*screen).empty());
    press(*screen, "cmdSave");
    EXPECT_FALSE(Form->ActualCostsIncurred.CareAndSupervisionWales());
    EXPECT_FALSE(Form->ActualCostsIncurred.CareAndSupervisionNorth());
}

TEST_F(ActualCostsScreen, TheLevelsOfWorkAreOneChoiceAlthoughSeveralCouldSeemToApply)
{
    const auto screen = opened(ActualCosts);
    click(*screen, "chkPrivateLawLevel4");
    click(*screen, "chkPrivateLawEnforcement");
    click(*screen, "chkPrivateLawLevel3");
    EXPECT_EQ(std::set<std::string> {"chkPrivateLawLevel3"}, allTicked(*screen));
}

TEST_F(ActualCostsScreen, OfTwoThatAFileHasTickedTheOneLoadedLastWins)
{
    Form->ActualCostsIncurred.CareAndSupervisionNorth = true;
    Form->ActualCostsIncurred.CareAndSupervisionWales = true;
    Form->ActualCostsIncurred.PrivateLawLevel3 = true;
    Form->ActualCostsIncurred.PrivateLawLevel4 = true;
    const auto screen = opened(ActualCosts);
    EXPECT_EQ(std::set<std::string>({"chkCareAndSupervisionWales", "chkPrivateLawLevel4"}), allTicked(*screen));
    // The file keeps both until the screen is saved.
    EXPECT_TRUE(Form->ActualCostsIncurred.CareAndSupervisionNorth());
    press(*screen, "cmdSave");
    EXPECT_FALSE(Form->ActualCostsIncurred.CareAndSupervisionNorth());
    EXPECT_TRUE(Form->ActualCostsIncurred.CareAndSupervisionWales());
}

TEST_F(ActualCostsScreen, TheReasonsShowTheirCountInParenthesesFromTheStart)
{
    const auto screen = opened(ActualCosts);
    EXPECT_EQ(QStringLiteral("(100)"), countOf(*screen, "txtPrivateLawWorkAtAllLevelsReasons").text());
}

TEST_F(ActualCostsScreen, NothingIsTiedToTheTicksOrTheFormType)
{
    expectAllOpen("Actual Costs");
}

TEST_F(ActualCostsScreen, ABillOfNoItemsIsNothingAndNoVAT)
{
    Form->VATRate = QStringLiteral("20");
    for (const clsGroup &group : {Care, PrivateLaw}) {
        const auto screen = opened(ActualCosts);
        press(*screen, group.button);
        EXPECT_EQ(pair("0.00", "0.00"), amounts(*screen, group)) << group.button;
    }
}

TEST_F(ActualCostsScreen, TheBillIsLoadedWithoutItsAdvocacyAndWithTheVATOfThat)
{
    addBill();
    // The VAT tick has no effect, only the rate. 20 % of 33.33 is 6.666.
    Form->VAT = false;
    Form->VATRate = QStringLiteral("20");
    const auto screen = opened(ActualCosts);
    press(*screen, Care.button);
    EXPECT_EQ(pair("33.33", "6.67"), amounts(*screen, Care));
    EXPECT_FALSE(oBoxNote::of(screen->Box(Care.profitCosts)));
    EXPECT_EQ(pair("", ""), amounts(*screen, PrivateLaw));
    EXPECT_EQ(QString(), textOf(*screen, "txtFixedFee"));
    press(*screen, PrivateLaw.button);
    EXPECT_EQ(pair("33.33", "6.67"), amounts(*screen, PrivateLaw));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ActualCostsScreen, AnOddRateIsTakenAsItIsWritten)
{
    addBill();
    // 17.5 % of 33.33 is 5.83275, stored with four decimals and shown with two.
    Form->VATRate = QStringLiteral("17.50");
    auto screen = opened(ActualCosts);
    press(*screen, Care.button);
    EXPECT_EQ(pair("33.33", "5.83"), amounts(*screen, Care));
    screen.reset();
    Form->VATRate = QString();
    screen = opened(ActualCosts);
    press(*screen, Care.button);
    EXPECT_EQ(pair("33.33", "0.00"), amounts(*screen, Care));
}

TEST_F(ActualCostsScreen, OnTheSecondFormTheAdvocacySchemeIsWhatIsTakenOff)
{
    addBill();
    const auto item = Form->AddFASItem();
    item->HearingUnits = 1;
    item->RateForUnits = QStringLiteral("60.00");
    item->BoltOnClaimed = QString();
    item->CourtBundlePayment = QStringLiteral("0.00");
    item->SettlementFee = QStringLiteral("0.00");
    item->ExceptionalTravel = QStringLiteral("0.00");
    Form->VATRate = QStringLiteral("20");
    auto screen = opened(ActualCosts);
    press(*screen, PrivateLaw.button);
    // 58.33 less 60.00: a negative amount is shown as it is.
    EXPECT_EQ(pair("-1.67", "-0.33"), amounts(*screen, PrivateLaw));
    const oBoxNote *note = oBoxNote::of(screen->Box(PrivateLaw.profitCosts));
    ASSERT_TRUE(note);
    EXPECT_EQ(QStringLiteral("Below zero: profit costs 58.33 less advocacy 60.00"), note->Words());
    EXPECT_EQ(Sign::Warning, note->gravity());
    screen.reset();
    Form->FormType = QStringLiteral("Claim1");
    screen = opened(ActualCosts);
    press(*screen, PrivateLaw.button);
    EXPECT_EQ(pair("33.33", "6.67"), amounts(*screen, PrivateLaw));
}

TEST_F(ActualCostsScreen, WhatWasTypedIsOverwrittenUnaskedAndNothingIsStoredBeforeSave)
{
    addBill();
    Form->VATRate = QStringLiteral("20");
    Form->ActualCostsIncurred.CareAndSupervisionProfitCosts = QStringLiteral("900.00");
    const QString clean = Form->XMLOutput();
    auto screen = opened(ActualCosts);
    type(screen->Box(Care.VAT), QStringLiteral("5"));
    press(*screen, Care.button);
    EXPECT_EQ(pair("33.33", "6.67"), amounts(*screen, Care));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(clean, Form->XMLOutput());
    press(*screen, "cmdCancel");
    EXPECT_EQ(clean, Form->XMLOutput());
    screen = opened(ActualCosts);
    press(*screen, Care.button);
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("33.33"), Form->ActualCostsIncurred.CareAndSupervisionProfitCosts());
    EXPECT_EQ(QStringLiteral("6.67"), Form->ActualCostsIncurred.CareAndSupervisionProfitCostsVAT());
    EXPECT_EQ(QString(), Form->ActualCostsIncurred.PrivateLawProfitCosts());
}

TEST_F(ActualCostsScreen, ABoxWithBadInputHoldsItsButton)
{
    addBill();
    const auto screen = opened(ActualCosts);
    type(screen->Box(Care.profitCosts), QStringLiteral("abc"));
    press(*screen, Care.button);
    EXPECT_EQ(pair("abc", ""), amounts(*screen, Care));
    EXPECT_EQ(QString::fromLatin1(Care.profitCosts), focusedName(*screen));
    type(screen->Box(Care.profitCosts), QStringLiteral("7"));
    press(*screen, Care.button);
    EXPECT_EQ(QStringLiteral("33.33"), textOf(*screen, Care.profitCosts));
}

TEST_F(ActualCostsScreen, PressedByItsLetterFromABoxItFillsTheButtonLeavesTheBoxAsTheMouseDoes)
{
    addBill();
    Form->VATRate = QStringLiteral("20");
    for (const clsGroup &group : {Care, PrivateLaw}) {
        const auto screen = opened(ActualCosts);
        const auto &button = screen->Box<oCustomButton>(group.button);
        const qsizetype mark = button.text().indexOf(u'&');
        ASSERT_GE(mark, 0) << group.button;
        const char letter = button.text()[mark + 1].toLower().toLatin1();
        type(screen->Box(group.profitCosts), QStringLiteral("120"));
        QTest::keyClick(screen->focusWidget(), letter, Qt::AltModifier);
        EXPECT_EQ(pair("33.33", "6.67"), amounts(*screen, group));
        EXPECT_EQ(QString::fromLatin1(group.button), focusedName(*screen));
        // Invalid input keeps the focus and is not overwritten.
        type(screen->Box(group.profitCosts), QStringLiteral("abc"));
        QTest::keyClick(screen->focusWidget(), letter, Qt::AltModifier);
        EXPECT_EQ(pair("abc", "6.67"), amounts(*screen, group));
        EXPECT_EQ(QString::fromLatin1(group.profitCosts), focusedName(*screen));
    }
}

TEST_F(ActualCostsScreen, TheButtonsStandBesideTheAmountsThatTheyFill)
{
    const auto screen = opened(ActualCosts);
    for (const clsGroup &group : {Care, PrivateLaw}) {
        const auto middle = [&](const char *name) {
            const QWidget &control = screen->Box(name);
            return control.mapTo(screen.get(), control.rect().center());
        };
        EXPECT_NEAR(middle(group.VAT).y(), middle(group.button).y(), 2);
        EXPECT_GT(middle(group.button).x(), middle(group.VAT).x());
    }
}
