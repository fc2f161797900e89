// Keys and clicks on an `oSGrid`.

#include "tests/controls/clsGridTest.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QHelpEvent>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <QToolTip>

namespace {

class clsGridInput : public clsGridTest {
protected:
    void SetUp() override
    {
        clsGridTest::SetUp();
        addGroups(4);
        grid.AddColumn({.caption = "Ref", .width = 50, .property = "Reference"});
        grid.AddColumn({.caption = "OrderID", .property = "OrderID", .visible = false});
        grid.AddColumn({.caption = "Name", .width = 50, .property = "Name"});
        grid.setOrderable(true);
        draw();
        grid.setFocus();
        grid.SelectRow(2);
    }

    QAbstractButton *arrow(const char *name) const { return grid.findChild<QAbstractButton *>(name); }
    QStringList orders() const
    {
        QStringList all;
        for (const auto &group : form.FeeEarnerGroupsCollection())
            all << QString::number(group->OrderID());
        return all;
    }
};

} // namespace

TEST_F(clsGridInput, ADoubleClickActivatesTheRow)
{
    QSignalSpy activated(&grid, &oSGrid::RowActivated);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, middleOf(3, 3));
    ASSERT_EQ(1, activated.count());
    // The hidden column counts too.
    EXPECT_EQ(QVariantList({3, 3, 3}), activated[0]);
    QTest::mouseDClick(view()->viewport(), Qt::RightButton, {}, middleOf(3, 3));
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, QPoint(30, middleOf(4).y() + 100));
    EXPECT_EQ(1, activated.count());
}

TEST_F(clsGridInput, ReturnActivatesTheSelectedRow)
{
    QSignalSpy activated(&grid, &oSGrid::RowActivated);
    press(Qt::Key_Return);
    press(Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(2, activated.count());
    EXPECT_EQ(QVariantList({2, 2, 1}), activated[0]);
    EXPECT_EQ(activated[0], activated[1]);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(QVariantList({2, 2, 3}), activated[2]);
    grid.SelectRow(0);
    press(Qt::Key_Return);
    EXPECT_EQ(3, activated.count());
}

TEST_F(clsGridInput, DeleteIsToldWhereThereIsARowToDelete)
{
    QSignalSpy deleted(&grid, &oSGrid::DeletePressed);
    press(Qt::Key_Delete);
    EXPECT_EQ(1, deleted.count());
    grid.SelectRow(0);
    press(Qt::Key_Delete);
    EXPECT_EQ(1, deleted.count());
}

TEST_F(clsGridInput, TheKeyThatCopiesCopiesNothingWhereNoRowIs)
{
    grid.ClearAll();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("before"), QGuiApplication::clipboard()->text());
}

TEST_F(clsGridInput, EveryKeyIsToldFirstAndCanBeTaken)
{
    QStringList told;
    QObject::connect(&grid, &oSGrid::KeyDown, &grid, [&](int key, Qt::KeyboardModifiers shift, bool *doDefault) {
        told << QStringLiteral("%1 %2").arg(key).arg(int(shift));
        *doDefault = key != Qt::Key_Delete && key != Qt::Key_C;
    });
    QSignalSpy deleted(&grid, &oSGrid::DeletePressed);
    QSignalSpy typed(&grid, &oSGrid::TimedKeyPress);
    press(Qt::Key_Delete);
    press(Qt::Key_C, Qt::ShiftModifier);
    press(Qt::Key_Down);
    const auto keyText = [](int key, int shift) { return QStringLiteral("%1 %2").arg(key).arg(shift); };
    EXPECT_EQ(QStringList({keyText(Qt::Key_Delete, 0), keyText(Qt::Key_Shift, Qt::ShiftModifier),
                  keyText('C', Qt::ShiftModifier), keyText(Qt::Key_Down, 0)}),
        told);
    EXPECT_EQ(0, deleted.count());
    EXPECT_FALSE(grid.findChild<QTimer *>("tmrTimedKeyPressCapture")->isActive());
    EXPECT_EQ(3, grid.SelectedRow());
}

TEST_F(clsGridInput, TheArrowKeysWalkTheRows)
{
    press(Qt::Key_Down);
    EXPECT_EQ(3, grid.SelectedRow());
    press(Qt::Key_Home);
    EXPECT_EQ(1, grid.SelectedRow());
    press(Qt::Key_End);
    EXPECT_EQ(4, grid.SelectedRow());
    press(Qt::Key_Up);
    EXPECT_EQ(3, grid.SelectedRow());
}

TEST_F(clsGridInput, ASelectionIsToldOnceWithItsItem)
{
    QSignalSpy changed(&grid, &oSGrid::SelectionChange);
    press(Qt::Key_Down);
    ASSERT_EQ(1, changed.count());
    EXPECT_EQ(QVariantList({3, 3}), changed[0]);
    grid.SelectRow(3);
    grid.Redraw(true);
    EXPECT_EQ(1, changed.count());
    // The same row now holds another item.
    form.FeeEarnerGroup(3)->OrderID = 9;
    grid.Redraw(true);
    ASSERT_EQ(2, changed.count());
    EXPECT_EQ(QVariantList({4, 3}), changed[1]);
    grid.Clear();
    ASSERT_EQ(3, changed.count());
    EXPECT_EQ(QVariantList({0, 0}), changed[2]);
}

TEST_F(clsGridInput, TheFocusSelectsTheFirstRowWhereNoneIsSelected)
{
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    other.setFocus();
    grid.SelectRow(0);
    grid.setFocus();
    EXPECT_EQ(1, grid.SelectedRow());
    EXPECT_TRUE(view()->hasFocus());
}

TEST_F(clsGridInput, TheArrowsMoveTheRowAndWriteTheItems)
{
    QSignalSpy selected(&grid, &oSGrid::SelectionChange);
    QTest::mouseClick(arrow("cmdDown"), Qt::LeftButton);
    // The neighbour, which is in the row for a moment, is never reported as the selected item.
    EXPECT_EQ(QList<QVariantList>({{2, 3}}), QList<QVariantList>(selected));
    EXPECT_EQ(QStringList({"G1", "G3", "G2", "G4"}), column(1));
    EXPECT_EQ(QStringList({"1", "3", "2", "4"}), orders());
    EXPECT_EQ(3, grid.SelectedRow());
    EXPECT_EQ(2, grid.SelectedItemData());
    EXPECT_TRUE(view()->hasFocus());
    QTest::mouseClick(arrow("cmdUp"), Qt::LeftButton);
    QTest::mouseClick(arrow("cmdUp"), Qt::LeftButton);
    EXPECT_EQ(QStringList({"G2", "G1", "G3", "G4"}), column(1));
    EXPECT_EQ(QStringList({"2", "1", "3", "4"}), orders());
    EXPECT_EQ(1, grid.SelectedRow());
    EXPECT_EQ(QList<QVariantList>({{2, 3}, {2, 2}, {2, 1}}), QList<QVariantList>(selected));
}

TEST_F(clsGridInput, AnArrowThatIsHeldMovesTheRowOnAndOn)
{
    QTest::mousePress(arrow("cmdDown"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return grid.SelectedRow() == 4; }));
    QTest::mouseRelease(arrow("cmdDown"), Qt::LeftButton);
    EXPECT_EQ(QStringList({"G1", "G3", "G4", "G2"}), column(1));
    EXPECT_TRUE(view()->hasFocus());
}

TEST_F(clsGridInput, AltAndAnArrowKeyMoveTheRow)
{
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringList({"G1", "G3", "G2", "G4"}), column(1));
    EXPECT_EQ(3, grid.SelectedRow());
    press(Qt::Key_Up, Qt::AltModifier | Qt::KeypadModifier);
    EXPECT_EQ(QStringList({"G1", "G2", "G3", "G4"}), column(1));
    EXPECT_EQ(2, grid.SelectedRow());
}

TEST_F(clsGridInput, AtTheEndsTheArrowsAreOffAndTheKeysDoNothing)
{
    EXPECT_TRUE(arrow("cmdUp")->isEnabled());
    EXPECT_TRUE(arrow("cmdDown")->isEnabled());
    grid.SelectRow(1);
    EXPECT_FALSE(arrow("cmdUp")->isEnabled());
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(1, grid.SelectedRow());
    grid.SelectRow(4);
    EXPECT_FALSE(arrow("cmdDown")->isEnabled());
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(4, grid.SelectedRow());
    grid.SelectRow(0);
    EXPECT_FALSE(arrow("cmdUp")->isEnabled());
    EXPECT_FALSE(arrow("cmdDown")->isEnabled());
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(QStringList({"1", "2", "3", "4"}), orders());
    EXPECT_EQ(0, grid.SelectedRow());
}

TEST_F(clsGridInput, AListThatIsNotOrderableCantBeMoved)
{
    grid.setOrderable(false);
    grid.Draw();
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringList({"1", "2", "3", "4"}), orders());
    EXPECT_FALSE(arrow("cmdDown")->isVisible());
}

TEST_F(clsGridInput, AMoveAgainstAKeyColumnMovesTheSelectionOnly)
{
    grid.ClearAll();
    grid.AddColumn({.caption = "Ref", .width = 50, .property = "Reference", .sortKey = true});
    grid.Draw();
    grid.SelectRow(2);
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringList({"G1", "G2", "G3", "G4"}), column(1));
    EXPECT_EQ(QStringList({"1", "2", "3", "4"}), orders());
    EXPECT_EQ(3, grid.SelectedRow());
}

TEST_F(clsGridInput, WhatIsTypedWithoutAPauseIsToldAsOneText)
{
    QSignalSpy typed(&grid, &oSGrid::TimedKeyPress);
    QTest::keyClicks(view(), "12");
    EXPECT_EQ(0, typed.count());
    EXPECT_EQ(500, grid.findChild<QTimer *>("tmrTimedKeyPressCapture")->interval());
    ASSERT_TRUE(QTest::qWaitFor([&] { return typed.count() == 1; }));
    EXPECT_EQ("12", typed[0][0].toString());
    QTest::keyClicks(view(), "g 3");
    ASSERT_TRUE(QTest::qWaitFor([&] { return typed.count() == 2; }));
    EXPECT_EQ("g 3", typed[1][0].toString());
    // The screen interprets typed text; the grid itself does not move.
    EXPECT_EQ(2, grid.SelectedRow());
}

TEST_F(clsGridInput, KeysWithoutACharacterAreNotTyped)
{
    QTimer &timer = *grid.findChild<QTimer *>("tmrTimedKeyPressCapture");
    for (const auto &[key, shift] : std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> {{Qt::Key_Down, {}},
             {Qt::Key_Tab, {}}, {Qt::Key_Escape, {}}, {Qt::Key_C, Qt::ControlModifier}, {Qt::Key_F3, {}},
             {Qt::Key_Delete, {}}, {Qt::Key_X, Qt::AltModifier}}) {
        press(key, shift);
        EXPECT_FALSE(timer.isActive()) << int(key);
        grid.setFocus();
    }
    press(Qt::Key_X, Qt::ShiftModifier);
    EXPECT_TRUE(timer.isActive());
}

namespace {

class clsGridMenu : public clsGridInput {
protected:
    QMenu *menu = nullptr;

    void SetUp() override
    {
        clsGridInput::SetUp();
        menu = new QMenu(&window);
        menu->setObjectName("mnuGroups");
        menu->addAction("Delete");
        grid.setPopupMenuName("mnuGroups");
    }
    void TearDown() override { menu->hide(); }
};

} // namespace

TEST_F(clsGridMenu, AClickBesideTheRowsLeavesTheSelectionAndBringsTheFocus)
{
    for (const bool many : {false, true}) {
        grid.setMultiSelect(many);
        grid.SelectRow(2);
        const QSignalSpy changed(&grid, &oSGrid::SelectionChange);
        view()->clearFocus();
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            QTest::mouseClick(view()->viewport(), button, {}, QPoint(30, middleOf(4).y() + 100));
        EXPECT_EQ(2, grid.SelectedRow()) << many;
        EXPECT_EQ(0, changed.count()) << many;
        EXPECT_TRUE(view()->hasFocus()) << many;
        const QSignalSpy activated(&grid, &oSGrid::RowActivated);
        press(Qt::Key_Return);
        EXPECT_EQ(1, activated.count()) << many;
        press(Qt::Key_Down);
        EXPECT_EQ(3, grid.SelectedRow()) << many;
    }
}

TEST_F(clsGridMenu, ARightClickSelectsTheRowAndPopsUpTheMenu)
{
    QSignalSpy released(&grid, &oSGrid::MouseUp);
    click(3, Qt::RightButton);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(3, grid.SelectedRow());
    ASSERT_EQ(1, released.count());
    EXPECT_EQ(Qt::RightButton, released[0][0].value<Qt::MouseButton>());
}

TEST_F(clsGridMenu, ARightClickOnTheEmptyAreaDoesNothing)
{
    QSignalSpy released(&grid, &oSGrid::MouseUp);
    QTest::mouseClick(view()->viewport(), Qt::RightButton, {}, QPoint(30, middleOf(4).y() + 100));
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(0, released.count());
}

TEST_F(clsGridMenu, AReleaseIsToldWithItsPlace)
{
    QPoint position;
    Qt::KeyboardModifiers shift;
    QObject::connect(
        &grid, &oSGrid::MouseUp, &grid, [&](Qt::MouseButton, Qt::KeyboardModifiers held, const QPoint &place) {
            shift = held;
            position = place;
        });
    click(4, Qt::LeftButton, Qt::ShiftModifier, 3);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(Qt::ShiftModifier, shift);
    EXPECT_EQ(4, grid.RowAt(position));
    EXPECT_EQ(3, grid.ColumnAt(position));
    EXPECT_EQ(0, grid.RowAt(QPoint(30, middleOf(4).y() + 100)));
    EXPECT_EQ(0, grid.ColumnAt(QPoint(30, middleOf(4).y() + 100)));
}

TEST_F(clsGridMenu, TheMenuKeysPopItUpAtTheSelectedRow)
{
    press(Qt::Key_Menu);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(2, grid.RowAt(view()->viewport()->mapFromGlobal(menu->pos()) - QPoint(0, 2)));
    menu->hide();
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
    grid.SelectRow(0);
    press(Qt::Key_Menu);
    EXPECT_FALSE(menu->isVisible());
}

TEST_F(clsGridMenu, WithoutANameOrAMenuOfThatNameNothingPopsUp)
{
    grid.setPopupMenuName("");
    click(3, Qt::RightButton);
    EXPECT_FALSE(menu->isVisible());
    grid.setPopupMenuName("mnuOthers");
    click(3, Qt::RightButton);
    EXPECT_EQ(nullptr, QApplication::activePopupWidget());
}

TEST_F(clsGridInput, ACutCellTellsItsTextInATooltip)
{
    const auto toolTipOf = [&](int row) {
        QHelpEvent event(QEvent::ToolTip, middleOf(row, 3), view()->viewport()->mapToGlobal(middleOf(row, 3)));
        QApplication::sendEvent(view()->viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    const QString longName = QString("a name beyond any column ").repeated(20);
    form.FeeEarnerGroup(1)->Name = longName;
    form.FeeEarnerGroup(2)->Name = "short";
    form.FeeEarnerGroup(3)->Name = "<b>" + longName;
    grid.Redraw(true);
    EXPECT_EQ(longName, toolTipOf(1));
    EXPECT_EQ("<p>&lt;b&gt;" + longName + "</p>", toolTipOf(3));
    toolTipOf(2);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(clsGridInput, NoColumnCanBeMovedResizedOrClicked)
{
    const QHeaderView &headings = *view()->horizontalHeader();
    EXPECT_FALSE(headings.sectionsMovable());
    EXPECT_FALSE(headings.sectionsClickable());
    EXPECT_EQ(QHeaderView::Fixed, headings.sectionResizeMode(0));
    const int width = view()->columnWidth(0);
    QTest::mousePress(headings.viewport(), Qt::LeftButton, {}, QPoint(width, 5));
    QTest::mouseMove(headings.viewport(), QPoint(width + 40, 5));
    QTest::mouseRelease(headings.viewport(), Qt::LeftButton, {}, QPoint(width + 40, 5));
    EXPECT_EQ(width, view()->columnWidth(0));
}

TEST_F(clsGridInput, TabLeavesTheGrid)
{
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    window.layout()->addWidget(&other);
    other.show();
    press(Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
}
