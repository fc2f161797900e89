#include "editors/oEnhancementsBox.h"
#include "tests/editors/clsItemBoxTest.h"
#include "tests/support/mdExpectError.h"

namespace {

using enum clsRowKind;

class EnhancementsBox : public clsItemBoxTest {
protected:
    static oCheckBox &tick(const QWidget &box) { return part<oCheckBox>(box, "chkIncludeInEnhancements"); }
    static QComboBox &list(const QWidget &box) { return part<QComboBox>(box, "cmbEnhancement"); }
    inline static const clsScreen TimeItem = editorOf({
        {Text, "txtDescription", "Description:"},
        {.kind = Other, .control = "oEnhancement", .caption = "Include in Enhancements:", .other = &EnhancementsOfItem},
        {Tick, "chkTravel", "Travel:"},
    });
    inline static const clsScreen Calls = editorOf({
        {.kind = Other,
            .control = "oCallsEnhancement",
            .caption = "Include in Enhancements:",
            .member = "EnhanceCalls CallsEnhancementUniqueID",
            .other = &EnhancementsOfItem},
    });
};

} // namespace

TEST_F(EnhancementsBox, OffersTheEnhancementsInTheUsersOrderUnderTheirPlaceInTheClaim)
{
    addEnhancement("Novel");
    addEnhancement("Urgent");
    addEnhancement("Complex");
    Form->Enhancement(1)->OrderID = 3;
    Form->Enhancement(3)->OrderID = 1;
    const oEnhancementsBox box;
    EXPECT_EQ((QStringList {QStringLiteral("Complex 3"), QStringLiteral("Urgent 2"), QStringLiteral("Novel 1")}),
        entries(list(box)));
    EXPECT_EQ(-1, list(box).currentIndex());
    EXPECT_FALSE(tick(box).Checked());
    EXPECT_TRUE(tick(box).isEnabled());
    EXPECT_FALSE(list(box).isEnabled());
}

TEST_F(EnhancementsBox, AGapInTheOrderHidesNothing)
{
    addEnhancement("Novel");
    addEnhancement("Urgent");
    addEnhancement("Complex");
    Form->DeleteEnhancement(2);
    const oEnhancementsBox box;
    EXPECT_EQ((QStringList {QStringLiteral("Novel 1"), QStringLiteral("Complex 2")}), entries(list(box)));
}

TEST_F(EnhancementsBox, CanBeTickedOnlyWhileTheClaimHasAnEnhancement)
{
    const auto box = shown<oEnhancementsBox>();
    EXPECT_FALSE(tick(*box).isEnabled());
    EXPECT_TRUE(tick(*box).isVisible());
    EXPECT_TRUE(list(*box).isVisible());
    EXPECT_EQ(QStringLiteral("Add an enhancement first"), tick(*box).toolTip());
    click(tick(*box));
    EXPECT_FALSE(box->IncludeInEnhancements());
    addEnhancement("Novel");
    box->fill();
    EXPECT_TRUE(tick(*box).isEnabled());
    EXPECT_EQ(QString(), tick(*box).toolTip());
    Form->DeleteEnhancement(1);
    box->fill();
    EXPECT_FALSE(tick(*box).isEnabled());
    EXPECT_EQ(0, list(*box).count());
}

TEST_F(EnhancementsBox, TheTickOpensTheListAndChoosesTheFirstWhereNothingIsChosen)
{
    const QString first = addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    const auto box = shown<oEnhancementsBox>();
    click(tick(*box));
    EXPECT_TRUE(list(*box).isEnabled());
    EXPECT_EQ(QStringLiteral("Novel"), list(*box).currentText());
    EXPECT_EQ(first, box->EnhancementUniqueID());
    box->setEnhancementUniqueID(second);
    click(tick(*box));
    EXPECT_FALSE(list(*box).isEnabled());
    EXPECT_TRUE(list(*box).isVisible());
    EXPECT_EQ(QStringLiteral("Urgent"), list(*box).currentText());
    click(tick(*box));
    EXPECT_EQ(second, box->EnhancementUniqueID());
}

TEST_F(EnhancementsBox, UntickingChoosesTheFirstTooWhereNothingIsChosen)
{
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    EXPECT_TRUE(list(box).isEnabled());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    addEnhancement("Novel");
    box.fill();
    EXPECT_EQ(-1, list(box).currentIndex());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    box.setIncludeInEnhancements(false);
    EXPECT_EQ(0, list(box).currentIndex());
}

TEST_F(EnhancementsBox, AnUntickedBoxHasNoIdentityEvenIfAnEntryIsChosen)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    oEnhancementsBox box;
    box.setEnhancementUniqueID(second);
    EXPECT_EQ(QStringLiteral("Urgent"), list(box).currentText());
    EXPECT_FALSE(box.IncludeInEnhancements());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    box.setIncludeInEnhancements(true);
    EXPECT_EQ(second, box.EnhancementUniqueID());
}

TEST_F(EnhancementsBox, AnEmptyOrUnknownIdentityLeavesTheChoice)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    box.setEnhancementUniqueID(second);
    box.setEnhancementUniqueID(QString());
    EXPECT_EQ(second, box.EnhancementUniqueID());
    box.setEnhancementUniqueID(QStringLiteral("ID99"));
    EXPECT_EQ(second, box.EnhancementUniqueID());
    EXPECT_TRUE(box.IncludeInEnhancements());
}

TEST_F(EnhancementsBox, FillingKeepsTheChosenItemThroughNewNamesAndANewOrder)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    box.setEnhancementUniqueID(second);
    Form->Enhancement(2)->Name = QStringLiteral("Very urgent");
    Form->Enhancement(1)->OrderID = 2;
    Form->Enhancement(2)->OrderID = 1;
    box.fill();
    EXPECT_EQ((QStringList {QStringLiteral("Very urgent 2"), QStringLiteral("Novel 1")}), entries(list(box)));
    EXPECT_EQ(second, box.EnhancementUniqueID());
}

TEST_F(EnhancementsBox, IsLoadedAndStoredByItsRow)
{
    const QString first = addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    const auto item = Form->AddScheduleOfTimeItem();
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = second;
    auto screen = edited(TimeItem, *item);
    auto *box = &screen->Box<oEnhancementsBox>("oEnhancement");
    EXPECT_TRUE(box->IncludeInEnhancements());
    EXPECT_EQ(second, box->EnhancementUniqueID());
    box->setEnhancementUniqueID(first);
    press(*screen, "cmdSave");
    EXPECT_TRUE(item->IncludeInEnhancements());
    EXPECT_EQ(first, item->EnhancementUniqueID());

    // Without the tick the identity is cleared too, so that the enhancement can be deleted.
    screen = edited(TimeItem, *item);
    box = &screen->Box<oEnhancementsBox>("oEnhancement");
    click(tick(*box));
    press(*screen, "cmdSave");
    EXPECT_FALSE(item->IncludeInEnhancements());
    EXPECT_EQ(QString(), item->EnhancementUniqueID());
}

TEST_F(EnhancementsBox, TheRowMayNameTheProperties)
{
    const QString first = addEnhancement("Novel");
    addEnhancement("Urgent");
    Form->Communications.EnhanceCalls = true;
    Form->Communications.CallsEnhancementUniqueID = first;
    const auto screen = edited(Calls, Form->Communications);
    const auto &box = screen->Box<oEnhancementsBox>("oCallsEnhancement");
    EXPECT_EQ(first, box.EnhancementUniqueID());
    QTest::keyClick(&list(box), Qt::Key_Down);
    press(*screen, "cmdSave");
    EXPECT_TRUE(Form->Communications.EnhanceCalls());
    EXPECT_EQ(Form->Enhancement(2)->UniqueID(), Form->Communications.CallsEnhancementUniqueID());
    EXPECT_FALSE(Form->Communications.EnhanceLettersIn());
    EXPECT_EQ(QString(), Form->Communications.LettersInEnhancementUniqueID());
}

TEST_F(EnhancementsBox, APropertyThatTheRecordLacksIsAnError)
{
    frmScreen wrong(TimeItem);
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([&wrong] { wrong.Initialise(Form->AddCounsel().get()); }));
}

TEST_F(EnhancementsBox, IsUsedByTheKeyboardAlone)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    const auto item = Form->AddScheduleOfTimeItem();
    const auto screen = edited(TimeItem, *item);
    EXPECT_EQ(QStringLiteral("txtDescription"), focusedName(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkIncludeInEnhancements"), focused(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkTravel"), focused(*screen)) << "a disabled list is no stop";
    key(*screen, Qt::Key_Backtab);
    key(*screen, Qt::Key_Space);
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmbEnhancement"), focused(*screen));
    key(*screen, Qt::Key_Down);
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkTravel"), focused(*screen));
    press(*screen, "cmdSave");
    EXPECT_EQ(second, item->EnhancementUniqueID());
}

TEST_F(EnhancementsBox, EachPartIsReadOutUnderANameOfItsOwn)
{
    const oEnhancementsBox box;
    EXPECT_EQ(QStringLiteral("Include in Enhancements"), tick(box).accessibleName());
    EXPECT_EQ(QStringLiteral("Enhancement"), list(box).accessibleName());
}
