#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "controls/oFrame.h"
#include "controls/oSGrid.h"
#include "costing/mdGetCommsInfo.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsModalTest.h"
#include "tests/editors/mdListColumns.h"

#include <QMenu>

namespace {

class CounselScreens : public clsModalTest {
protected:
    static std::unique_ptr<frmScreen> edited(const clsScreen &table, clsXMLRecord *record)
    {
        auto screen = std::make_unique<frmScreen>(table);
        screen->Initialise(record);
        show(*screen);
        return screen;
    }
    static void addCounsel(const QStringList &names)
    {
        for (const QString &name : names)
            Form->AddCounsel()->Name = name;
    }
    static void addEnhancement(const char *name, const char *rate)
    {
        const auto enhancement = Form->AddEnhancement();
        enhancement->Name = QString::fromUtf8(name);
        enhancement->Rate = QString::fromUtf8(rate);
    }
    static oSGrid &counsel(const frmScreen &screen) { return screen.Box<oSGrid>("sgCounsel"); }
    static oSGrid &enhancements(const frmScreen &screen) { return screen.Box<oSGrid>("sgEnhancements"); }
    static QStringList counselInOrder()
    {
        QStringList result;
        for (int order = 1; order <= int(Form->CounselCollection().size()); ++order)
            result << Form->CounselByOrderID(order)->Name();
        return result;
    }
    void expectRefusal(const char *text)
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QString::fromUtf8(text), user.messages[0].text);
        EXPECT_EQ(QStringLiteral("Cannot Delete"), user.messages[0].title);
        EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
        user.messages.clear();
    }
    void expectQuestion(const char *text)
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QString::fromUtf8(text), user.messages[0].text);
        EXPECT_EQ(QStringLiteral("Delete?"), user.messages[0].title);
        EXPECT_EQ(clsUserInterface::YesNo, user.messages[0].buttons);
        user.messages.clear();
    }
    void expectRequired()
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
        EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
        user.messages.clear();
    }
};

} // namespace

TEST_F(CounselScreens, HaveOneFrameAndTheirButtons)
{
    const auto frames = [](const frmScreen &screen) {
        QStringList result;
        for (const oFrame *frame : screen.findChildren<oFrame *>())
            result << frame->Caption();
        for (const oCustomButton *button : screen.findChildren<oCustomButton *>())
            if (!button->Caption().isEmpty())
                result << button->Caption();
        return result.join(u'|');
    };
    EXPECT_EQ(QStringLiteral("Counsel|Add|Close"), frames(*created(QStringLiteral("Counsel"))));
    EXPECT_EQ(QStringLiteral("Enhancements|Add|Close"), frames(*created(QStringLiteral("Enhancements"))));
    EXPECT_EQ(QStringLiteral("Counsel Setup|Save and Add|Save|Cancel"), frames(frmScreen(ScreenCounselEdit())));
    EXPECT_EQ(QStringLiteral("Enhancement|Save and Add|Save|Cancel"), frames(frmScreen(ScreenEnhancementEdit())));
}

TEST_F(CounselScreens, TheListsShowTheirColumns)
{
    const auto first = created(QStringLiteral("Counsel"));
    EXPECT_EQ((QStringList {QStringLiteral("Name Name 40 left"), QStringLiteral("Account Number AccountNumber 40 left"),
                  QStringLiteral("VAT VAT 20 centre")}),
        captionsOf(counsel(*first)));
    EXPECT_TRUE(counsel(*first).Orderable());
    const auto second = created(QStringLiteral("Enhancements"));
    EXPECT_EQ((QStringList {QStringLiteral("Name Name 80 left"), QStringLiteral("Rate Rate 20 right")}),
        captionsOf(enhancements(*second)));
    EXPECT_TRUE(enhancements(*second).Orderable());
    for (const auto *menu : {first->findChild<QMenu *>(QStringLiteral("mnuCounsel")),
             second->findChild<QMenu *>(QStringLiteral("mnuEnhancements"))}) {
        ASSERT_TRUE(menu);
        ASSERT_EQ(1, menu->actions().size());
        EXPECT_EQ(QStringLiteral("&Delete"), menu->actions().constFirst()->text());
    }
}

TEST_F(CounselScreens, AnEmptyListSaysHowToBegin)
{
    const auto said = [](const QWidget &grid) {
        const auto parts = grid.findChildren<QWidget *>();
        return std::any_of(parts.begin(), parts.end(), [](const QWidget *part) {
            return part->accessibleDescription() == QLatin1String("No counsel yet. Add one to begin.")
                || part->accessibleDescription() == QLatin1String("No enhancements yet. Add one to begin.");
        });
    };
    EXPECT_EQ(
        QByteArray("No counsel yet. Add one to begin."), itemsOf(counsel(*created(QStringLiteral("Counsel")))).empty);
    EXPECT_EQ(QByteArray("No enhancements yet. Add one to begin."),
        itemsOf(enhancements(*created(QStringLiteral("Enhancements")))).empty);
    EXPECT_TRUE(said(counsel(*opened(QStringLiteral("Counsel")))));
    EXPECT_TRUE(said(enhancements(*opened(QStringLiteral("Enhancements")))));
}

TEST_F(CounselScreens, ACounselIsEnteredAndStored)
{
    auto screen = edited(ScreenCounselEdit(), nullptr);
    type(screen->Box("txtName"), QStringLiteral("Ms A. Barrister"));
    type(screen->Box("txtAccountNumber"), QStringLiteral("0A123"));
    click(screen->Box("chkVAT"));
    EXPECT_TRUE(Form->CounselCollection().empty());
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    ASSERT_EQ(1u, Form->CounselCollection().size());
    const auto item = Form->Counsel(1);
    EXPECT_EQ(QStringLiteral("Ms A. Barrister"), item->Name());
    EXPECT_EQ(QStringLiteral("0A123"), item->AccountNumber());
    EXPECT_TRUE(item->VAT());
    EXPECT_EQ(1, item->OrderID());
    EXPECT_EQ(QStringLiteral("ID1"), item->UniqueID());

    screen = edited(ScreenCounselEdit(), item.get());
    EXPECT_EQ(QStringLiteral("Ms A. Barrister"), mdTextOf(screen->Box("txtName")));
    EXPECT_EQ(QStringLiteral("0A123"), mdTextOf(screen->Box("txtAccountNumber")));
    EXPECT_TRUE(screen->Box<oCheckBox>("chkVAT").Checked());
    type(screen->Box("txtName"), QStringLiteral("Mr B"));
    press(*screen, "cmdCancel");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("Ms A. Barrister"), item->Name());
}

TEST_F(CounselScreens, ACounselNeedsANameAndNothingElse)
{
    const auto screen = edited(ScreenCounselEdit(), nullptr);
    type(screen->Box("txtAccountNumber"), QStringLiteral("0A123"));
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    expectRequired();
    EXPECT_TRUE(Form->CounselCollection().empty());
    EXPECT_EQ(QStringLiteral("txtName"), focusedName(*screen));
    type(screen->Box("txtAccountNumber"), QString());
    type(screen->Box("txtName"), QStringLiteral("Mr B"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(1u, Form->CounselCollection().size());
}

TEST_F(CounselScreens, AnEnhancementIsEnteredAndStored)
{
    auto screen = edited(ScreenEnhancementEdit(), nullptr);
    type(screen->Box("txtName"), QStringLiteral("Novel"));
    type(screen->Box("txtRate"), QStringLiteral("50%"));
    press(*screen, "cmdSave");
    ASSERT_EQ(1u, Form->EnhancementsCollection().size());
    const auto item = Form->Enhancement(1);
    EXPECT_EQ(QStringLiteral("Novel"), item->Name());
    EXPECT_EQ(QStringLiteral("50.00"), item->Rate());
    EXPECT_EQ(QStringLiteral("ID1"), item->UniqueID());
    screen = edited(ScreenEnhancementEdit(), item.get());
    EXPECT_EQ(QStringLiteral("50.00"), mdTextOf(screen->Box("txtRate")));
}

TEST_F(CounselScreens, AnEnhancementNeedsANameAndTakesAnyRate)
{
    auto screen = edited(ScreenEnhancementEdit(), nullptr);
    type(screen->Box("txtRate"), QStringLiteral("25"));
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    expectRequired();
    EXPECT_TRUE(Form->EnhancementsCollection().empty());
    type(screen->Box("txtName"), QStringLiteral("Huge"));
    type(screen->Box("txtRate"), QStringLiteral("12345.67"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("12345.67"), Form->Enhancement(1)->Rate());
    // A rate that is not entered is stored as 0.00, not as an empty text, which can't be computed with.
    screen = edited(ScreenEnhancementEdit(), nullptr);
    EXPECT_EQ(QStringLiteral("0.00"), mdTextOf(screen->Box("txtRate")));
    type(screen->Box("txtName"), QStringLiteral("Nothing"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("0.00"), Form->Enhancement(2)->Rate());
}

TEST_F(CounselScreens, ACounselNamedByADisbursementIsKeptUntilAnotherIsNamed)
{
    addCounsel({QStringLiteral("Ms A"), QStringLiteral("Mr B")});
    const auto disbursement = Form->AddDisbursement();
    disbursement->Counsel = true;
    disbursement->CounselUniqueID = Form->Counsel(1)->UniqueID();
    const auto screen = opened(QStringLiteral("Counsel"));
    key(*screen, Qt::Key_Delete);
    expectRefusal("This Counsel is in use. Please remove all uses of it before deleting");
    EXPECT_EQ((QStringList {QStringLiteral("Ms A"), QStringLiteral("Mr B")}), counselInOrder());
    disbursement->CounselUniqueID = Form->Counsel(2)->UniqueID();
    user.answers = {clsUserInterface::Yes};
    key(*screen, Qt::Key_Delete);
    expectQuestion("Are you sure you wish to delete this Counsel?");
    EXPECT_EQ(QStringList {QStringLiteral("Mr B")}, counselInOrder());
    EXPECT_EQ(1, counsel(*screen).Rows());
    key(*screen, Qt::Key_Delete);
    expectRefusal("This Counsel is in use. Please remove all uses of it before deleting");
}

TEST_F(CounselScreens, AnEnhancementIsKeptForAnIdentityThatIsNotEvenInUse)
{
    addEnhancement("Novel", "50.00");
    Form->Communications.EnhanceCalls = false;
    Form->Communications.CallsEnhancementUniqueID = Form->Enhancement(1)->UniqueID();
    const auto screen = opened(QStringLiteral("Enhancements"));
    auto *entry = screen->findChild<QAction *>(QStringLiteral("mnuDeleteEnhancement"));
    ASSERT_TRUE(entry);
    entry->trigger();
    expectRefusal("This Enhancement is in use. Please remove all uses of it before deleting");
    EXPECT_EQ(1u, Form->EnhancementsCollection().size());
    Form->Communications.CallsEnhancementUniqueID = QString();
    user.answers = {clsUserInterface::No, clsUserInterface::Yes};
    entry->trigger();
    expectQuestion("Are you sure you wish to delete this Enhancement?");
    EXPECT_EQ(1u, Form->EnhancementsCollection().size());
    entry->trigger();
    expectQuestion("Are you sure you wish to delete this Enhancement?");
    EXPECT_TRUE(Form->EnhancementsCollection().empty());
    EXPECT_EQ(0, enhancements(*screen).Rows());
}

TEST_F(CounselScreens, AnotherRateReprices)
{
    const auto group = Form->AddFeeEarnerGroup();
    for (const char *rate : {"HourlyRate", "AdvocacyRate", "CounselRate", "TravelAndWaitingRate", "CallsRate",
             "LettersInRate", "LettersOutRate"})
        group->field(QString::fromUtf8(rate))->writeText(QStringLiteral("40.00"));
    const auto feeEarner = Form->AddFeeEarner();
    feeEarner->GroupUniqueID = group->UniqueID();
    feeEarner->Calls = 10;
    addEnhancement("Novel", "50.00");
    const auto item = Form->AddScheduleOfTimeItem();
    item->FeeEarnerUniqueID = feeEarner->UniqueID();
    item->TTime = QStringLiteral("02:00");
    item->Code = QStringLiteral("ACT");
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = Form->Enhancement(1)->UniqueID();
    Form->Communications.EnhanceCalls = true;
    Form->Communications.CallsEnhancementUniqueID = Form->Enhancement(1)->UniqueID();
    // Two hours at 40.00 and ten calls at 40.00, each enhanced by half.
    EXPECT_EQ(QStringLiteral("120"), MoneyToText(item->Claim()));
    EXPECT_EQ(QStringLiteral("600"), MoneyToText(CommsClaimAtLine(*Form, 1, clsCommsKind::Calls)));
    const auto screen = opened(QStringLiteral("Enhancements"));
    inModal([&] { key(*screen, Qt::Key_Return); },
        [](frmScreen &editor) {
            type(editor.Box("txtRate"), QStringLiteral("25"));
            press(editor, "cmdSave");
        });
    EXPECT_EQ(QStringLiteral("100"), MoneyToText(item->Claim()));
    EXPECT_EQ(QStringLiteral("500"), MoneyToText(CommsClaimAtLine(*Form, 1, clsCommsKind::Calls)));
}

TEST_F(CounselScreens, TheOrderIsStoredAsTheArrowsMakeIt)
{
    addCounsel({QStringLiteral("Ms A"), QStringLiteral("Mr B"), QStringLiteral("Ms C")});
    const auto screen = opened(QStringLiteral("Counsel"));
    key(*screen, Qt::Key_Down);
    key(*screen, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ((QStringList {QStringLiteral("Mr B"), QStringLiteral("Ms A"), QStringLiteral("Ms C")}), counselInOrder());
    press(*screen, "cmdClose");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("2"), QString::fromUtf8(Form->Counsel(1)->XMLNode().child_value("orderid")));
    const auto again = opened(QStringLiteral("Counsel"));
    EXPECT_EQ(2, counsel(*again).SelectedItemData());
}

TEST_F(CounselScreens, TheListsAreUsedByTheKeyboardAlone)
{
    const auto screen = opened(QStringLiteral("Enhancements"));
    EXPECT_EQ(QStringLiteral("sgEnhancements"), focusedName(*screen));
    for (const char *name : {"Novel", "Urgent"})
        inModal([&] { key(*screen, Qt::Key_A, Qt::AltModifier); },
            [name](frmScreen &editor) {
                EXPECT_EQ(QStringLiteral("txtName"), focusedName(editor));
                QTest::keyClicks(editor.focusWidget(), QString::fromUtf8(name));
                key(editor, Qt::Key_Tab);
                EXPECT_EQ(QStringLiteral("txtRate"), focusedName(editor));
                QTest::keyClicks(editor.focusWidget(), QStringLiteral("12.5"));
                key(editor, Qt::Key_Return);
            });
    ASSERT_EQ(2u, Form->EnhancementsCollection().size());
    EXPECT_EQ(QStringLiteral("12.50"), Form->Enhancement(2)->Rate());
    EXPECT_EQ(2, enhancements(*screen).SelectedRow());
    inModal([&] { key(*screen, Qt::Key_Return); },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("Urgent"), mdTextOf(editor.Box("txtName")));
            key(editor, Qt::Key_Escape);
        });
    user.answers = {clsUserInterface::Yes};
    key(*screen, Qt::Key_Delete);
    ASSERT_EQ(1u, Form->EnhancementsCollection().size());
    EXPECT_EQ(QStringLiteral("Novel"), Form->Enhancement(1)->Name());
    key(*screen, Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
}
