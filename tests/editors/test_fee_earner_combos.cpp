#include "base/clsRunTimeError.h"
#include "editors/oFeeEarnerCombo.h"
#include "editors/oFeeEarnerGroupCombo.h"
#include "tests/editors/clsFeeEarnersTest.h"
#include "tests/support/mdExpectError.h"

#include <QAbstractItemView>
#include <QAction>
#include <QSignalSpy>

#include <limits>
#include <map>

namespace {

class FeeEarnerGroupCombo : public clsFeeEarnersTest { };
class FeeEarnerCombo : public clsFeeEarnersTest {
protected:
    /// Shows a list alone in a window, with the focus.
    static void showAlone(oFeeEarnerCombo &list)
    {
        list.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
        list.setFocus(Qt::TabFocusReason);
    }
};

QStringList entries(const QComboBox &list)
{
    QStringList texts;
    for (int entry = 0; entry < list.count(); ++entry)
        texts << list.itemText(entry);
    return texts;
}

} // namespace

TEST_F(FeeEarnerGroupCombo, OffersTheGroupsInTheirOrderAndStartsOnTheFirst)
{
    const auto partner = addGroup("PTR");
    const auto trainee = addGroup("TRN");
    const auto solicitor = addGroup("SOL");
    trainee->OrderID = 1;
    partner->OrderID = 3;
    solicitor->OrderID = 7;
    const oFeeEarnerGroupCombo list;
    EXPECT_EQ(QStringList({QStringLiteral("TRN"), QStringLiteral("PTR"), QStringLiteral("SOL")}), entries(list));
    EXPECT_EQ(0, list.currentIndex());
    EXPECT_EQ(trainee->UniqueID(), list.SelectedFeeEarnerGroupUniqueID());
    EXPECT_EQ(2, list.itemData(0).toInt()) << "an entry carries the group's place in the claim";
}

TEST_F(FeeEarnerGroupCombo, OffersNoneFirstOnlyWhereAskedTo)
{
    const auto group = addGroup("PTR");
    oFeeEarnerGroupCombo list;
    EXPECT_FALSE(list.ShowNoneOption());
    list.setShowNoneOption(true);
    EXPECT_EQ(QStringList({QStringLiteral("None"), QStringLiteral("PTR")}), entries(list));
    EXPECT_EQ(0, list.currentIndex());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerGroupUniqueID());
    list.setSelectedFeeEarnerGroupUniqueID(group->UniqueID());
    EXPECT_EQ(1, list.currentIndex());
    EXPECT_EQ(group->UniqueID(), list.SelectedFeeEarnerGroupUniqueID());
    list.setShowNoneOption(false);
    EXPECT_EQ(QStringList {QStringLiteral("PTR")}, entries(list));
}

TEST_F(FeeEarnerGroupCombo, SettingAGroupTellsOfItOnceAndAnEmptyIdentityDoesNothing)
{
    addGroup("PTR");
    const auto solicitor = addGroup("SOL");
    oFeeEarnerGroupCombo list;
    QSignalSpy changes(&list, &oFeeEarnerGroupCombo::Change);
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    EXPECT_EQ(QStringLiteral("SOL"), list.currentText());
    EXPECT_EQ(1, changes.size());
    // Even if it is already chosen.
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    EXPECT_EQ(2, changes.size());
    list.setSelectedFeeEarnerGroupUniqueID(QString());
    EXPECT_EQ(QStringLiteral("SOL"), list.currentText());
    EXPECT_EQ(2, changes.size());
    list.setSelectedFeeEarnerGroupUniqueID(QStringLiteral("ID99"));
    EXPECT_EQ(-1, list.currentIndex());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerGroupUniqueID());
    EXPECT_EQ(3, changes.size());
}

TEST_F(FeeEarnerGroupCombo, TheUsersChoiceIsToldOfOnce)
{
    addGroup("PTR");
    const auto solicitor = addGroup("SOL");
    oFeeEarnerGroupCombo list;
    QSignalSpy changes(&list, &oFeeEarnerGroupCombo::Change);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(1, changes.size());
    EXPECT_EQ(solicitor->UniqueID(), list.SelectedFeeEarnerGroupUniqueID());
}

TEST_F(FeeEarnerGroupCombo, DisabledItHasNoneSelectedAndEnabledTheFirst)
{
    addGroup("PTR");
    const auto solicitor = addGroup("SOL");
    QWidget window;
    auto &list = *new oFeeEarnerGroupCombo(&window);
    window.show();
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    QSignalSpy changes(&list, &oFeeEarnerGroupCombo::Change);
    list.setEnabled(false);
    EXPECT_EQ(-1, list.currentIndex());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerGroupUniqueID());
    EXPECT_EQ(1, changes.size());
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerGroupUniqueID()) << "a disabled list reads as empty whatever it shows";
    list.setEnabled(true);
    EXPECT_EQ(QStringLiteral("PTR"), list.currentText());
    EXPECT_EQ(3, changes.size());
    // At every call, even if the state doesn't change.
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    list.setEnabled(true);
    EXPECT_EQ(QStringLiteral("PTR"), list.currentText());
    list.setEnabled(false);
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    list.setEnabled(false);
    EXPECT_EQ(-1, list.currentIndex());
    list.setEnabled(true);
    // Disabling the window doesn't disable the list's choice.
    list.setSelectedFeeEarnerGroupUniqueID(solicitor->UniqueID());
    window.setEnabled(false);
    EXPECT_EQ(solicitor->UniqueID(), list.SelectedFeeEarnerGroupUniqueID());
    window.setEnabled(true);
    EXPECT_EQ(solicitor->UniqueID(), list.SelectedFeeEarnerGroupUniqueID());
}

TEST_F(FeeEarnerGroupCombo, WithoutGroupsItIsEmptyAndReadsAsSuch)
{
    oFeeEarnerGroupCombo list;
    EXPECT_EQ(0, list.count());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerGroupUniqueID());
    list.setEnabled(false);
    list.setEnabled(true);
    EXPECT_EQ(-1, list.currentIndex());
}

TEST_F(FeeEarnerCombo, LabelsTheFirst96EntriesWithTheirKeys)
{
    addFeeEarners(97);
    const oFeeEarnerCombo list;
    ASSERT_EQ(97, list.count());
    // clang-format off
    const std::map<int, const char *> labels {
        { 1, "F1 - 1"},               {12, "F12 - 12"},
        {13, "Shift F1 - 13"},        {15, "Shift F3 - 15"},        {24, "Shift F12 - 24"},
        {25, "Control F1 - 25"},      {36, "Control F12 - 36"},
        {37, "Alt F1 - 37"},          {48, "Alt F12 - 48"},
        {49, "Shift-Control F1 - 49"}, {60, "Shift-Control F12 - 60"},
        {61, "Control-Alt F1 - 61"},  {72, "Control-Alt F12 - 72"},
        {73, "Shift-Alt F1 - 73"},    {84, "Shift-Alt F12 - 84"},
        {85, "Shift-Control-AltF1 - 85"}, {96, "Shift-Control-AltF12 - 96"},
        {97, "97"},
    };
    // clang-format on
    for (const auto &[position, text] : labels)
        EXPECT_EQ(QString::fromUtf8(text), list.itemText(position - 1)) << position;
}

TEST_F(FeeEarnerCombo, OffersTheFeeEarnersInTheirOrderAndHandsOutTheChosenOne)
{
    const auto group = addGroup("PTR");
    const auto first = addFeeEarner(QStringLiteral("JH"), *group);
    const auto second = addFeeEarner(QStringLiteral("AB"), *group);
    first->OrderID = 2;
    second->OrderID = 1;
    oFeeEarnerCombo list;
    EXPECT_EQ(QStringList({QStringLiteral("F1 - AB"), QStringLiteral("F2 - JH")}), entries(list));
    EXPECT_EQ(second, list.SelectedFeeEarner());
    EXPECT_EQ(second->UniqueID(), list.SelectedFeeEarnerUniqueID());
    QSignalSpy changes(&list, &oFeeEarnerCombo::Change);
    list.setSelectedFeeEarner(first);
    EXPECT_EQ(1, list.currentIndex());
    EXPECT_EQ(first, list.SelectedFeeEarner());
    EXPECT_EQ(first->UniqueID(), list.SelectedFeeEarnerUniqueID());
    EXPECT_EQ(1, changes.size());
    EXPECT_EQ(0, Form->DefaultFeeEarnerListIndex()) << "only the user's own choice is remembered";
    list.setSelectedFeeEarner(nullptr);
    EXPECT_EQ(nullptr, list.SelectedFeeEarner());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerUniqueID());
}

TEST_F(FeeEarnerCombo, WithoutFeeEarnersNothingIsSelectedAndKeysAreConsumedAllTheSame)
{
    oFeeEarnerCombo list;
    EXPECT_EQ(nullptr, list.SelectedFeeEarner());
    EXPECT_EQ(QString(), list.SelectedFeeEarnerUniqueID());
    EXPECT_TRUE(list.SelectByKeyCode(112, Qt::NoModifier));
    EXPECT_EQ(-1, list.currentIndex());
    EXPECT_EQ(0, Form->DefaultFeeEarnerListIndex());
}

TEST_F(FeeEarnerCombo, StartsWhereTheUserChoseLastAndElseOnTheFirst)
{
    addFeeEarners(3);
    Form->DefaultFeeEarnerListIndex = 2;
    EXPECT_EQ(2, oFeeEarnerCombo().currentIndex());
    for (const int outside : {3, 97, -1, std::numeric_limits<int>::min()}) {
        Form->DefaultFeeEarnerListIndex = outside;
        EXPECT_EQ(0, oFeeEarnerCombo().currentIndex()) << outside;
        EXPECT_EQ(outside, Form->DefaultFeeEarnerListIndex()) << "filling writes nothing";
    }
    // As after a deletion.
    Form->DefaultFeeEarnerListIndex = 2;
    Form->DeleteFeeEarner(2);
    const oFeeEarnerCombo list;
    EXPECT_EQ(QStringList({QStringLiteral("F1 - 1"), QStringLiteral("F2 - 3")}), entries(list));
    EXPECT_EQ(0, list.currentIndex());
}

TEST_F(FeeEarnerCombo, EveryChoiceOfTheUsersIsWhereTheNextListStarts)
{
    addFeeEarners(30);
    oFeeEarnerCombo list;
    showAlone(list);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(1, Form->DefaultFeeEarnerListIndex());
    QTest::keyClick(&list, Qt::Key_F5, Qt::ShiftModifier);
    EXPECT_EQ(16, Form->DefaultFeeEarnerListIndex());
    list.showPopup();
    QTest::keyClick(list.view(), Qt::Key_Down);
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_EQ(17, list.currentIndex());
    EXPECT_EQ(17, Form->DefaultFeeEarnerListIndex());
    EXPECT_EQ(17, oFeeEarnerCombo().currentIndex());
}

TEST_F(FeeEarnerCombo, EveryFunctionKeyOfEveryTierChoosesItsPlace)
{
    addFeeEarners(97);
    // The expected tiers of keys, written by hand.
    const std::vector<Qt::KeyboardModifiers> tiers {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
        Qt::AltModifier, Qt::ShiftModifier | Qt::ControlModifier, Qt::ControlModifier | Qt::AltModifier,
        Qt::ShiftModifier | Qt::AltModifier, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier};
    oFeeEarnerCombo list;
    showAlone(list);
    QSignalSpy changes(&list, &oFeeEarnerCombo::Change);
    int place = 0;
    for (const Qt::KeyboardModifiers held : tiers) {
        for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
            list.setCurrentIndex(96);
            QTest::keyClick(&list, Qt::Key(key), held);
            EXPECT_EQ(place, list.currentIndex());
            EXPECT_EQ(place, Form->DefaultFeeEarnerListIndex());
            EXPECT_FALSE(list.view()->isVisible()) << "F4 opens nothing";
            // The same through the function that the screen calls.
            list.setCurrentIndex(96);
            EXPECT_TRUE(list.SelectByKeyCode(112 + key - Qt::Key_F1, held | Qt::KeypadModifier));
            EXPECT_EQ(place, list.currentIndex());
            ++place;
        }
    }
    EXPECT_EQ(96, place);
    EXPECT_EQ(4 * 96, changes.size());
}

TEST_F(FeeEarnerCombo, AKeyBeyondTheEndOfTheListIsSwallowedAndLeavesTheSelection)
{
    addFeeEarners(13);
    oFeeEarnerCombo list;
    EXPECT_TRUE(list.SelectByKeyCode(112, Qt::ShiftModifier));
    EXPECT_EQ(12, list.currentIndex());
    EXPECT_EQ(12, Form->DefaultFeeEarnerListIndex());
    EXPECT_TRUE(list.SelectByKeyCode(113, Qt::ShiftModifier));
    EXPECT_EQ(12, list.currentIndex());
    EXPECT_EQ(12, Form->DefaultFeeEarnerListIndex());
    EXPECT_TRUE(list.SelectByKeyCode(123, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier));
    EXPECT_EQ(12, list.currentIndex());
}

TEST_F(FeeEarnerCombo, OtherKeysAreLeftAlone)
{
    addFeeEarners(30);
    oFeeEarnerCombo list;
    for (const int keyCode : {0, 13, 32, 111, 124, 1000, -112}) {
        EXPECT_FALSE(list.SelectByKeyCode(keyCode, Qt::NoModifier)) << keyCode;
        EXPECT_EQ(0, list.currentIndex());
    }
    EXPECT_EQ(112, oFeeEarnerCombo::KeyCodeOf(Qt::Key_F1));
    EXPECT_EQ(123, oFeeEarnerCombo::KeyCodeOf(Qt::Key_F12));
    for (const int key : {int(Qt::Key_F13), int(Qt::Key_F1) - 1, int(Qt::Key_A), int(Qt::Key_Return)})
        EXPECT_EQ(0, oFeeEarnerCombo::KeyCodeOf(key));
}

TEST_F(FeeEarnerCombo, NoMenuAndNoShortcutTakesAFunctionKeyFromTheList)
{
    addFeeEarners(60);
    QWidget window;
    auto &list = *new oFeeEarnerCombo(&window);
    QAction action;
    for (const auto held : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        action.setShortcuts(action.shortcuts() << QKeySequence(held | Qt::Key_F4));
    window.addAction(&action);
    QSignalSpy triggered(&action, &QAction::triggered);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    list.setFocus(Qt::TabFocusReason);
    int place = 3;
    for (const Qt::KeyboardModifiers held : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        QTest::keyClick(window.windowHandle(), Qt::Key_F4, held);
        EXPECT_EQ(place, list.currentIndex());
        place += 12;
    }
    EXPECT_EQ(0, triggered.size());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(FeeEarnerCombo, AFunctionKeyInTheOpenListChoosesAndClosesIt)
{
    addFeeEarners(5);
    oFeeEarnerCombo list;
    showAlone(list);
    list.showPopup();
    ASSERT_TRUE(list.view()->isVisible());
    QTest::keyClick(list.view(), Qt::Key_F3);
    EXPECT_FALSE(list.view()->isVisible());
    EXPECT_EQ(2, list.currentIndex());
    EXPECT_EQ(2, Form->DefaultFeeEarnerListIndex());
}
