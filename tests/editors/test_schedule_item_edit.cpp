#include "controls/oAllPurposeBox.h"
#include "controls/oDateBox.h"
#include "controls/oTimeBox.h"
#include "editors/oCodeCombo.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oFeeEarnerCombo.h"
#include "tests/editors/clsScheduleTest.h"

#include <QLineEdit>

namespace {

class ScheduleItemEdit : public clsScheduleTest {
protected:
    static oFeeEarnerCombo &feeEarner(const frmScreen &screen) { return screen.Box<oFeeEarnerCombo>("cmbFeeEarner"); }
    static QString reference(const frmScreen &screen)
    {
        const auto selected = feeEarner(screen).SelectedFeeEarner();
        return selected ? selected->Reference() : QString();
    }
    static oCheckBox &dateTick(const frmScreen &screen)
    {
        return *screen.Box("txtDate").findChild<oCheckBox *>(QStringLiteral("chkShowDate"));
    }
    static oEnhancementsBox &enhancement(const frmScreen &screen)
    {
        return screen.Box<oEnhancementsBox>("oEnhancement");
    }
    static Item saved(frmScreen &screen)
    {
        key(screen, Qt::Key_Return);
        EXPECT_FALSE(screen.isVisible());
        return Form->ScheduleOfTimeItemsCollection().back();
    }
    /// The five ticks that determine the rate: one letter for each that is set.
    static QString ticks(const frmScreen &screen)
    {
        QString result;
        for (const char *name : {"chkAdvocacy", "chkCounsel", "chkTravel", "chkWaiting", "chkUseHourlyRate"})
            result += tick(screen, name).Checked() ? QLatin1Char(name[3]) : QLatin1Char('-');
        return result;
    }
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        const auto group = addGroup("PTR");
        group->HourlyRate = QStringLiteral("47.25");
        group->AdvocacyRate = QStringLiteral("60.00");
        group->TravelAndWaitingRate = QStringLiteral("25.00");
        for (const char *name : {"AB", "CD", "EF"})
            addFeeEarner(QString::fromUtf8(name), *group);
    }
};

} // namespace

TEST_F(ScheduleItemEdit, ANewItemStartsWithTheFocusInItsFirstField)
{
    const auto screen = editItem();
    EXPECT_EQ(QStringLiteral("cmbFeeEarner"), focusedName(*screen));
    EXPECT_EQ(QStringLiteral("AB"), reference(*screen));
    EXPECT_TRUE(dateTick(*screen).Checked());
    EXPECT_EQ(QString(), screen->Box("txtDate").findChild<QLineEdit *>()->text());
    EXPECT_EQ(QStringLiteral("DOT"), screen->Box<oCodeCombo>("cmbCode").Code());
    EXPECT_EQ(QStringLiteral("00:00"), screen->Box<oTimeBox>("txtTime").Text());
    EXPECT_EQ(QStringLiteral("-----"), ticks(*screen));
    EXPECT_FALSE(screen->Box("chkUseHourlyRate").isEnabled());
    EXPECT_EQ(0u, countItems()) << "made by the first Save only";
}

TEST_F(ScheduleItemEdit, SaveWritesAllFieldsAndTheyAreShownAgain)
{
    Form->AddEnhancement()->Name = QStringLiteral("Speed");
    const auto screen = editItem();
    key(*screen, Qt::Key_F2);
    type(screen->Box("txtDate"), QStringLiteral("4.3.26"));
    type(screen->Box("cmbCode"), QStringLiteral("hin"));
    type(screen->Box("txtDescription"), QStringLiteral("At court & back"));
    type(screen->Box("txtTime"), QStringLiteral("1.5"));
    for (const char *name : {"chkAdvocacy", "chkTravel", "chkUseHourlyRate"})
        click(screen->Box(name));
    click(*screen->Box("oEnhancement").findChild<oCheckBox *>());
    EXPECT_EQ(0u, countItems());
    const Item item = saved(*screen);
    ASSERT_EQ(1u, countItems());
    EXPECT_EQ(Form->FeeEarner(2)->UniqueID(), item->FeeEarnerUniqueID());
    EXPECT_EQ(QStringLiteral("04/03/26"), item->dDate());
    EXPECT_EQ(QStringLiteral("HIN"), item->Code());
    EXPECT_EQ(QStringLiteral("At court & back"), item->Description());
    EXPECT_EQ(QStringLiteral("01:30"), item->TTime());
    EXPECT_TRUE(item->Advocacy() && item->Travel() && item->UseHourlyRate() && item->IncludeInEnhancements());
    EXPECT_FALSE(item->Counsel() || item->Waiting());
    EXPECT_EQ(Form->Enhancement(1)->UniqueID(), item->EnhancementUniqueID());

    const auto again = editItem(item);
    EXPECT_EQ(QStringLiteral("CD"), reference(*again));
    EXPECT_EQ(QStringLiteral("04/03/26"), again->Box<oDateBox>("txtDate").Text());
    EXPECT_EQ(QStringLiteral("HIN"), again->Box<oCodeCombo>("cmbCode").Code());
    EXPECT_EQ(QStringLiteral("At court & back"), again->Box<oAllPurposeBox>("txtDescription").Text());
    EXPECT_EQ(QStringLiteral("01:30"), again->Box<oTimeBox>("txtTime").Text());
    EXPECT_EQ(QStringLiteral("A-T-U"), ticks(*again));
    EXPECT_TRUE(enhancement(*again).IncludeInEnhancements());
}

TEST_F(ScheduleItemEdit, TheFieldsAreStoredInTheOrderOfTheItem)
{
    QStringList order;
    const auto screen = editItem();
    for (const clsScreenField &field : screen->Fields())
        order << field.control->objectName();
    EXPECT_EQ(QStringLiteral("cmbFeeEarner txtDate cmbCode txtDescription txtTime chkAdvocacy chkCounsel chkTravel "
                             "chkWaiting chkUseHourlyRate oEnhancement"),
        order.join(u' '));
}

TEST_F(ScheduleItemEdit, CancelEscAndTheCloseBoxMakeAndChangeNothingAndAskNothing)
{
    const Item item = addItem("01/02/26");
    const QString before = Form->XMLOutput();
    for (int way = 0; way < 6; ++way) {
        const auto screen = editItem(way < 3 ? item : nullptr);
        type(screen->Box("txtDescription"), QStringLiteral("Changed"));
        if (way % 3 == 0)
            press(*screen, "cmdCancel");
        else if (way % 3 == 1)
            key(*screen, Qt::Key_Escape);
        else
            screen->close();
        EXPECT_FALSE(screen->isVisible()) << way;
        EXPECT_EQ(before, Form->XMLOutput()) << way;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ScheduleItemEdit, EnterSavesFromEveryField)
{
    Form->AddEnhancement();
    int saves = 0;
    const auto fields = editItem();
    for (const clsScreenField &field : fields->Fields()) {
        const Item item = addItem("01/02/26");
        item->Advocacy = true;
        item->IncludeInEnhancements = true;
        const auto screen = editItem(item);
        type(screen->Box("txtDescription"), QStringLiteral("Saved"));
        focus(*screen, field.row->control);
        ASSERT_EQ(QString::fromUtf8(field.row->control), focusedName(*screen));
        key(*screen, ++saves % 2 ? Qt::Key_Return : Qt::Key_Enter);
        EXPECT_FALSE(screen->isVisible()) << field.row->control;
        EXPECT_EQ(QStringLiteral("Saved"), item->Description()) << field.row->control;
    }
    EXPECT_EQ(11, saves);
}

TEST_F(ScheduleItemEdit, ADateIsRequiredWhileItsTickIsOn)
{
    const auto screen = editItem();
    type(screen->Box("txtDescription"), QStringLiteral("Without a date"));
    key(*screen, Qt::Key_Return);
    expectMessage("Required Fields", "Please complete all fields marked with a *");
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(0u, countItems());
    EXPECT_EQ(QStringLiteral("txtDate"), focusedName(*screen));
    EXPECT_EQ(QStringLiteral("txtText"), screen->focusWidget()->objectName()) << "where the date is typed";
}

TEST_F(ScheduleItemEdit, AnItemCanBeSavedWithoutADate)
{
    auto screen = editItem();
    click(dateTick(*screen));
    const Item item = saved(*screen);
    EXPECT_EQ(QStringLiteral("31/12/29"), item->dDate());
    EXPECT_TRUE(user.messages.empty());
    screen = editItem(item);
    EXPECT_FALSE(dateTick(*screen).Checked());
    saved(*screen);
    EXPECT_EQ(QStringLiteral("31/12/29"), item->dDate());
}

TEST_F(ScheduleItemEdit, TabLeadsToWhereTheDateIsTypedAndTheTickLiesBeforeIt)
{
    const auto screen = editItem();
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("txtText"), focused(*screen));
    EXPECT_EQ(QStringLiteral("txtDate"), focusedName(*screen));
    key(*screen, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QStringLiteral("chkShowDate"), focused(*screen));
    key(*screen, Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("31/12/29"), screen->Box<oDateBox>("txtDate").Text());
    // Without a date only its tick can take the focus.
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmbCode"), focusedName(*screen));
    key(*screen, Qt::Key_Backtab, Qt::ShiftModifier);
    key(*screen, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QStringLiteral("cmbFeeEarner"), focusedName(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkShowDate"), focused(*screen));
    key(*screen, Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("txtText"), focused(*screen)) << "today, to be typed over";
}

TEST_F(ScheduleItemEdit, ABadDateOrTimeHoldsSaveAndLetsEscThrough)
{
    for (const char *box : {"txtDate", "txtTime"}) {
        const auto screen = editItem();
        type(screen->Box(box), QStringLiteral("31/02/24x"));
        key(*screen, Qt::Key_Return);
        EXPECT_TRUE(screen->isVisible()) << box;
        EXPECT_EQ(QString::fromUtf8(box), focusedName(*screen));
        key(*screen, Qt::Key_Escape);
        EXPECT_FALSE(screen->isVisible()) << box;
    }
    EXPECT_EQ(0u, countItems());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ScheduleItemEdit, CounselTravelAndWaitingExcludeEachOtherAndAdvocacyNone)
{
    const auto screen = editItem();
    click(screen->Box("chkAdvocacy"));
    click(screen->Box("chkCounsel"));
    EXPECT_EQ(QStringLiteral("AC---"), ticks(*screen));
    click(screen->Box("chkTravel"));
    EXPECT_EQ(QStringLiteral("A-T--"), ticks(*screen));
    click(screen->Box("chkWaiting"));
    EXPECT_EQ(QStringLiteral("A--W-"), ticks(*screen));
    click(screen->Box("chkCounsel"));
    EXPECT_EQ(QStringLiteral("AC---"), ticks(*screen));
    click(screen->Box("chkCounsel"));
    EXPECT_EQ(QStringLiteral("A----"), ticks(*screen)) << "none of the three may stand, too";
}

TEST_F(ScheduleItemEdit, UseHourlyRateGoesWithAdvocacyOnly)
{
    const auto screen = editItem();
    EXPECT_FALSE(screen->Box("chkUseHourlyRate").isEnabled());
    click(screen->Box("chkAdvocacy"));
    EXPECT_TRUE(screen->Box("chkUseHourlyRate").isEnabled());
    click(screen->Box("chkUseHourlyRate"));
    click(screen->Box("chkTravel"));
    EXPECT_EQ(QStringLiteral("A-T-U"), ticks(*screen));
    click(screen->Box("chkAdvocacy"));
    EXPECT_EQ(QStringLiteral("--T--"), ticks(*screen));
    EXPECT_FALSE(screen->Box("chkUseHourlyRate").isEnabled());
    click(screen->Box("chkAdvocacy"));
    EXPECT_EQ(QStringLiteral("A-T--"), ticks(*screen)) << "unticked with it, and not brought back";
}

TEST_F(ScheduleItemEdit, AFunctionKeyChoosesTheFeeEarnerFromEveryField)
{
    Form->AddEnhancement();
    const auto first = Form->FeeEarner(1)->Group();
    for (int n = 4; n <= 13; ++n)
        addFeeEarner(QString::number(n), *first);
    const Item item = addItem("01/02/26");
    item->Advocacy = true;
    item->IncludeInEnhancements = true;
    const auto screen = editItem(item);
    for (const clsScreenField &field : screen->Fields()) {
        focus(*screen, field.row->control);
        const QWidget *part = screen->focusWidget();
        // F4 would open a list, and F10 a menu.
        for (const auto &[function, chosen] : {std::pair(Qt::Key_F4, "4"), {Qt::Key_F2, "CD"}, {Qt::Key_F10, "10"}}) {
            key(*screen, function);
            EXPECT_EQ(QString::fromUtf8(chosen), reference(*screen)) << field.row->control;
        }
        key(*screen, Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_EQ(QStringLiteral("13"), reference(*screen)) << field.row->control;
        key(*screen, Qt::Key_F2, Qt::ShiftModifier);
        EXPECT_EQ(QStringLiteral("13"), reference(*screen)) << "beyond the list";
        key(*screen, Qt::Key_F10, Qt::ShiftModifier); // opens a text's menu elsewhere
        EXPECT_FALSE(QApplication::activePopupWidget()) << field.row->control;
        EXPECT_EQ(part, screen->focusWidget()) << field.row->control;
    }
    // This includes parts of a field other than the one that gets its focus, and the buttons.
    for (QWidget *part : {static_cast<QWidget *>(&dateTick(*screen)),
             static_cast<QWidget *>(screen->Box("oEnhancement").findChild<QComboBox *>()),
             screen->findChild<QWidget *>(QStringLiteral("cmdSave"))}) {
        part->setFocus(Qt::TabFocusReason);
        key(*screen, Qt::Key_F4);
        EXPECT_EQ(QStringLiteral("4"), reference(*screen)) << part->objectName().toStdString();
        key(*screen, Qt::Key_F3);
        EXPECT_EQ(QStringLiteral("EF"), reference(*screen)) << part->objectName().toStdString();
    }
    EXPECT_EQ(QStringLiteral("DOT"), screen->Box<oCodeCombo>("cmbCode").Code());
    saved(*screen);
    EXPECT_EQ(Form->FeeEarner(3)->UniqueID(), item->FeeEarnerUniqueID());
    EXPECT_EQ(QStringLiteral("EF"), reference(*editItem())) << "the next item starts on the last one chosen";
}

TEST_F(ScheduleItemEdit, TheLetterOfADateThatIsSwitchedOffLeadsToItsTick)
{
    const auto screen = editItem(addItem("31/12/29"));
    auto &date = screen->Box<oDateBox>("txtDate");
    ASSERT_FALSE(date.HasDate());
    focus(*screen, "txtDescription");
    key(*screen, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(&dateTick(*screen), screen->focusWidget());
    EXPECT_FALSE(date.HasDate()) << "it is entered, and not switched on";
    key(*screen, Qt::Key_Space);
    EXPECT_TRUE(date.HasDate());
    focus(*screen, "txtDescription");
    key(*screen, Qt::Key_D, Qt::AltModifier);
    QTest::keyClicks(screen->focusWidget(), QStringLiteral("1.2.26"));
    EXPECT_TRUE(date.HasDate());
    EXPECT_EQ(QStringLiteral("1.2.26"), date.TypedText());
}

TEST_F(ScheduleItemEdit, FunctionKeysOfOtherWindowsAreLeftAlone)
{
    const auto screen = editItem();
    QLineEdit other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(&other, Qt::Key_F2);
    EXPECT_EQ(QStringLiteral("AB"), reference(*screen));
}

TEST_F(ScheduleItemEdit, AnItemWhoseFeeEarnerIsMissingKeepsWhatItSaysUntilOneIsChosen)
{
    const Item item = addItem("01/02/26");
    item->FeeEarnerUniqueID = QStringLiteral("ID999");
    auto screen = editItem(item);
    EXPECT_EQ(QString(), reference(*screen));
    saved(*screen);
    EXPECT_EQ(QStringLiteral("ID999"), item->FeeEarnerUniqueID());
    screen = editItem(item);
    key(*screen, Qt::Key_F3);
    saved(*screen);
    EXPECT_EQ(Form->FeeEarner(3)->UniqueID(), item->FeeEarnerUniqueID());
}

TEST_F(ScheduleItemEdit, AnItemOfAFileWithoutATimeIsGivenOneThatCanBePriced)
{
    const Item item = addItem("01/02/26", "DOT", "");
    saved(*editItem(item));
    EXPECT_EQ(QStringLiteral("00:00"), item->TTime());
    EXPECT_EQ(QStringLiteral("0"), MoneyToText(item->Claim()));
}

TEST_F(ScheduleItemEdit, AnItemWithoutTimeClaimsNothing)
{
    const auto screen = editItem();
    type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
    const Item item = saved(*screen);
    EXPECT_EQ(QStringLiteral("00:00"), item->TTime());
    EXPECT_EQ(QStringLiteral("0"), MoneyToText(item->Claim()));
}

TEST_F(ScheduleItemEdit, TheCodeAndTheTicksDecideOnTheColumn)
{
    struct clsCase {
        const char *code;
        const char *tick;
        int column;
    };
    for (const clsCase &row : {clsCase {"HIN", nullptr, 2}, {"OOT", nullptr, 1}, {"RES", nullptr, 1},
             {"ACT", nullptr, 0}, {"DOT", "chkWaiting", 4}, {"DOT", "chkTravel", 3}}) {
        const auto screen = editItem();
        type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
        type(screen->Box("cmbCode"), QString::fromUtf8(row.code));
        if (row.tick)
            click(screen->Box(row.tick));
        EXPECT_EQ(row.column, saved(*screen)->TimeColumn()) << row.code;
    }
}

TEST_F(ScheduleItemEdit, AdvocacyAtTheHourlyRateStillCountsAsAdvocacy)
{
    Form->FormType = QStringLiteral("Claim1A");
    Form->ExcludeNonAdvocacy = true;
    const auto screen = editItem();
    type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
    type(screen->Box("txtTime"), QStringLiteral("60"));
    click(screen->Box("chkAdvocacy"));
    click(screen->Box("chkTravel"));
    click(screen->Box("chkUseHourlyRate"));
    const Item item = saved(*screen);
    EXPECT_EQ(QStringLiteral("47.25"), MoneyToText(item->Rate()));
    EXPECT_TRUE(Form->IsOnBill(*item));
}

TEST_F(ScheduleItemEdit, TheEnhancementsOfGroupAndListAdd)
{
    const auto group = Form->FeeEarnerGroup(1);
    group->HourlyRate = QStringLiteral("100.00");
    group->Enhance = true;
    group->EnhancementRate = QStringLiteral("50.00");
    const auto listed = Form->AddEnhancement();
    listed->Name = QStringLiteral("Speed");
    listed->Rate = QStringLiteral("10.00");
    const auto screen = editItem();
    type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
    type(screen->Box("txtTime"), QStringLiteral("1:30"));
    click(*screen->Box("oEnhancement").findChild<oCheckBox *>());
    const Item item = saved(*screen);
    EXPECT_EQ(QStringLiteral("60"), MoneyToText(item->TotalEnhancementPercentage()));
    EXPECT_EQ(QStringLiteral("150"), MoneyToText(item->BasicClaim()));
    EXPECT_EQ(QStringLiteral("240"), MoneyToText(item->Claim()));
}

TEST_F(ScheduleItemEdit, AClaimIsRoundedOnceOnTheSum)
{
    const auto group = Form->FeeEarnerGroup(1);
    group->HourlyRate = QStringLiteral("100.00");
    group->Enhance = true;
    group->EnhancementRate = QStringLiteral("50.00");
    const auto screen = editItem();
    type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
    type(screen->Box("txtTime"), QStringLiteral("10"));
    const Item item = saved(*screen);
    EXPECT_EQ(QStringLiteral("16.67"), MoneyToText(item->BasicClaim()));
    EXPECT_EQ(QStringLiteral("25.01"), MoneyToText(item->Claim()));
    // Items store no price.
    const QString before = item->XMLOutput();
    group->HourlyRate = QStringLiteral("60.00");
    EXPECT_EQ(QStringLiteral("15"), MoneyToText(item->Claim()));
    EXPECT_EQ(before, item->XMLOutput());
}
