// Lists of items in an `oSGrid`: rows, order, selection and what the grid reports to its screen.

#include "tests/controls/clsGridTest.h"
#include "tests/support/mdTestPaths.h"

#include <QHelpEvent>
#include <QToolTip>

using clsGrid = clsGridTest;

TEST_F(clsGrid, ShowsEachPropertyByTheCellRule)
{
    addGroup("MO", "01/01/1700", true);
    addGroup("DVE", "True", false);
    grid.AddColumn({.caption = "Ref", .width = 40, .property = "Reference"});
    grid.AddColumn({.caption = "Name", .width = 40, .property = "Name"});
    grid.AddColumn({.caption = "Enh", .width = 20, .property = "enhance"});
    draw();
    EXPECT_EQ(QStringList({"MO", "-", "\u2713"}), rowTexts(1));
    // The rule depends on the text, not on the kind of the property.
    EXPECT_EQ(QStringList({"DVE", "\u2713", "\u2717"}), rowTexts(2));
    EXPECT_EQ("yes", model()->index(0, 2).data(Qt::AccessibleTextRole).toString());
    EXPECT_EQ("no", model()->index(1, 2).data(Qt::AccessibleTextRole).toString());
    EXPECT_EQ("-", model()->index(0, 1).data(Qt::AccessibleTextRole).toString());
}

TEST_F(clsGrid, TextsThatOnlyResembleTheWordsAreShownAsTheyAre)
{
    for (const char *text : {"true", "FALSE", " True", "01/01/1701", "1/1/1700", "-"})
        addGroup(text, "");
    addReferenceColumn();
    draw();
    for (const int row : {1, 2, 3, 4, 5, 6})
        EXPECT_EQ(form.FeeEarnerGroup(row)->Reference(), rowTexts(row)[0]);
}

TEST_F(clsGrid, AnUnknownPropertyIsAnErrorAndLeavesTheRowsAsTheyWere)
{
    addGroup("MO");
    addReferenceColumn();
    draw();
    grid.AddColumn({.caption = "Odd", .width = 10, .property = "NoSuchThing"});
    EXPECT_EQ(clsRunTimeError::NoSuchProperty, errorOf([&] { grid.Draw(); }));
    EXPECT_TRUE(view()->updatesEnabled());
    grid.ClearAll();
    addReferenceColumn();
    grid.Draw();
    EXPECT_EQ(QStringList({"MO"}), rowTexts(1));
}

TEST_F(clsGrid, APropertyThatCantBeReadIsMarkedAndSaysWhy)
{
    const auto feeEarner = form.AddFeeEarner();
    feeEarner->Reference = QStringLiteral("JH");
    form.AddScheduleOfTimeItem()->FeeEarnerUniqueID = feeEarner->UniqueID();
    form.AddScheduleOfTimeItem()->XMLNode().child("advocacy").text().set("perhaps");
    grid.AddColumn({.caption = "Fee Earner", .width = 50, .property = "FeeEarnerReference"});
    grid.AddColumn({.caption = "Adv", .width = 50, .property = "Advocacy"});
    grid.setItemCollection(form.ScheduleOfTimeItemsCollection());
    grid.Draw();
    EXPECT_EQ("JH", rowTexts(1)[0]);
    EXPECT_EQ(QStringList({"!", "!"}), rowTexts(2));
    EXPECT_EQ("Object variable or With block variable not set", describes(2, 1));
    EXPECT_EQ("Schedule item 2: the tick Advocacy holds \"perhaps\", which is neither True nor False", describes(2, 2));
    EXPECT_EQ("no", describes(1, 2));
}

TEST_F(clsGrid, WhatIsWrongWithAnItemStandsInTheColumnThatShowsItOrElseInTheFirst)
{
    addGroup("A", "Partner");
    addGroup("B", "Trainee");
    grid.AddColumn({.caption = "Odd", .property = "HourlyRate", .visible = false});
    addReferenceColumn();
    grid.AddColumn({.caption = "Name", .width = 40, .property = "Name", .faultOf = "enhancementrate"});
    grid.setFaultReader([this](const clsZR3Item &item) {
        return &item == form.FeeEarnerGroup(1).get() ? clsGridFaults {{"EnhancementRate", "no rate"},
                   {"HourlyRate", "no hourly rate"}, {"CallsRate", "nor this"}}
                                                     : clsGridFaults();
    });
    draw();
    EXPECT_EQ(QStringList({"0.00", "! A", "!"}), rowTexts(1));
    EXPECT_EQ(QStringList({"0.00", "B", "Trainee"}), rowTexts(2));
    EXPECT_EQ("no rate", describes(1, 3));
    EXPECT_EQ("no hourly rate", describes(1, 2)) << "the column that it stands in can't be seen";
    const QPoint place = middleOf(1, 3);
    QHelpEvent event(QEvent::ToolTip, place, view()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(view()->viewport(), &event);
    EXPECT_EQ("no rate", QToolTip::text());
    EXPECT_FALSE(grid.grab().isNull());
}

TEST_F(clsGrid, GapsInTheOrderCloseAtTheFirstDraw)
{
    const auto second = addGroup("B"), third = addGroup("C"), first = addGroup("A");
    first->OrderID = 2;
    second->OrderID = 5;
    third->OrderID = 9;
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    EXPECT_EQ(QStringList({"A", "B", "C"}), column(1));
    EXPECT_EQ(std::vector({1, 2, 3}), std::vector({first->OrderID(), second->OrderID(), third->OrderID()}));
}

TEST_F(clsGrid, AListThatIsNotOrderableIsNeitherSortedNorNumbered)
{
    addGroup("B")->OrderID = 9;
    addGroup("A")->OrderID = 2;
    addReferenceColumn();
    draw();
    EXPECT_EQ(QStringList({"B", "A"}), column(1));
    EXPECT_EQ(9, form.FeeEarnerGroup(1)->OrderID());
    EXPECT_FALSE(grid.findChild<QWidget *>("udUpDown")->isVisible());
}

TEST_F(clsGrid, AnItemWithoutAnOrderStandsFirstUntilItIsNumbered)
{
    addGroup("A");
    addGroup("B");
    addGroup("New")->OrderID = 0;
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    EXPECT_EQ(QStringList({"New", "A", "B"}), column(1));
    EXPECT_EQ(1, form.FeeEarnerGroup(3)->OrderID());
}

TEST_F(clsGrid, TheOrderIsANumberAndNoText)
{
    for (int n = 1; n <= 12; ++n)
        addGroup(QByteArray::number(n).constData());
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    EXPECT_EQ(QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}), column(1));
}

TEST_F(clsGrid, KeyColumnsSortAsTextWhateverTheirKindAndCase)
{
    for (const char *text : {"b", "A", "10", "9", "a", "B"})
        addGroup(text);
    grid.AddColumn({.caption = "Ref", .width = 40, .property = "Reference", .sortKey = true, .sortKind = 100});
    draw();
    // Items with equal keys keep their order.
    EXPECT_EQ(QStringList({"10", "9", "A", "a", "b", "B"}), column(1));
}

TEST_F(clsGrid, SeveralKeysCountInTheOrderOfTheColumnsAndTheItemsOrderLast)
{
    addGroup("x", "2")->OrderID = 4;
    addGroup("y", "1")->OrderID = 3;
    addGroup("x", "1")->OrderID = 2;
    addGroup("x", "1")->OrderID = 1;
    grid.AddColumn({.caption = "Ref", .width = 40, .property = "Reference", .sortKey = true});
    grid.AddColumn({.caption = "Name", .property = "Name", .sortKey = true, .visible = false});
    grid.setOrderable(true);
    draw();
    EXPECT_EQ(QStringList({"x", "x", "x", "y"}), column(1));
    EXPECT_EQ(QStringList({"1", "1", "2", "1"}), column(2));
    EXPECT_EQ(std::vector({4, 3, 1, 2}), rowItems());
    EXPECT_EQ(1, form.FeeEarnerGroup(4)->OrderID());
    EXPECT_EQ(4, form.FeeEarnerGroup(2)->OrderID());
    EXPECT_TRUE(view()->isColumnHidden(1));
}

TEST_F(clsGrid, ARedrawReadsTheItemsAnewAndTheirNumber)
{
    addGroup("A");
    addReferenceColumn();
    draw();
    form.FeeEarnerGroup(1)->Reference = "Z";
    addGroup("B");
    EXPECT_EQ(QStringList({"A"}), column(1));
    grid.Redraw(false);
    EXPECT_EQ(QStringList({"Z", "B"}), column(1));
}

TEST_F(clsGrid, TheSelectionStaysOnItsRowAndFallsOnTheLastOfAShorterList)
{
    addGroups(5);
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    grid.SelectRow(3);
    EXPECT_EQ(3, grid.SelectedItemData());
    form.DeleteFeeEarnerGroup(3);
    grid.Redraw(true);
    EXPECT_EQ(3, grid.SelectedRow());
    EXPECT_EQ("G4", form.FeeEarnerGroup(grid.SelectedItemData())->Reference());
    form.DeleteFeeEarnerGroup(4);
    form.DeleteFeeEarnerGroup(3);
    grid.Redraw(true);
    EXPECT_EQ(2, grid.SelectedRow());
    EXPECT_EQ("G2", form.FeeEarnerGroup(grid.SelectedItemData())->Reference());
    form.DeleteFeeEarnerGroup(1);
    form.DeleteFeeEarnerGroup(1);
    grid.Redraw(true);
    EXPECT_EQ(0, grid.SelectedRow());
    EXPECT_EQ(0, grid.SelectedItemData());
}

TEST_F(clsGrid, TheOrderIsDenseAgainAfterADeletion)
{
    addGroups(4);
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    form.DeleteFeeEarnerGroup(2);
    EXPECT_EQ(4, form.FeeEarnerGroup(3)->OrderID());
    grid.Redraw(true);
    EXPECT_EQ(QStringList({"G1", "G3", "G4"}), column(1));
    EXPECT_EQ(3, form.FeeEarnerGroup(3)->OrderID());
}

TEST_F(clsGrid, NothingSelectedIsZeroAndStaysSo)
{
    addGroups(3);
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    EXPECT_EQ(0, grid.SelectedItemData());
    grid.MoveUp();
    grid.MoveDown();
    EXPECT_EQ(QStringList({"G1", "G2", "G3"}), column(1));
    grid.Redraw(true);
    EXPECT_EQ(0, grid.SelectedRow());
    grid.SelectRow(2);
    grid.SelectRow(7);
    EXPECT_EQ(0, grid.SelectedRow());
}

TEST_F(clsGrid, TheRowDataIsTheItemsIndexAndNotItsPlace)
{
    addGroup("B")->OrderID = 2;
    addGroup("A")->OrderID = 1;
    addReferenceColumn();
    grid.setOrderable(true);
    draw();
    grid.SelectRow(1);
    EXPECT_EQ(2, grid.SelectedItemData());
}

TEST_F(clsGrid, TheItemsOfAllSelectedRowsComeFromTheTop)
{
    addGroups(4);
    addReferenceColumn();
    grid.setMultiSelect(true);
    draw();
    EXPECT_TRUE(grid.SelectedItemCollection().empty());
    click(3);
    click(1, Qt::LeftButton, Qt::ControlModifier);
    const clsGridItems items = grid.SelectedItemCollection();
    ASSERT_EQ(2u, items.size());
    EXPECT_EQ(form.FeeEarnerGroup(1), items[0]);
    EXPECT_EQ(form.FeeEarnerGroup(3), items[1]);

    grid.setMultiSelect(false);
    click(2);
    click(4, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(1u, grid.SelectedItemCollection().size());
}

TEST_F(clsGrid, ClearTakesTheRowsAndClearAllTheColumnsToo)
{
    addGroups(2);
    addReferenceColumn();
    draw();
    grid.SelectRow(2);
    grid.Clear();
    EXPECT_EQ(0, grid.Rows());
    EXPECT_EQ(0, grid.SelectedItemData());
    EXPECT_EQ(1, model()->columnCount());
    grid.Redraw(true);
    EXPECT_EQ(2, grid.Rows());
    grid.ClearAll();
    EXPECT_EQ(0, grid.Rows());
    EXPECT_EQ(0, model()->columnCount());
    addReferenceColumn();
    grid.Draw();
    EXPECT_EQ(1, model()->columnCount());
    EXPECT_EQ(QStringList({"G1", "G2"}), column(1));
}

TEST_F(clsGrid, WithoutACollectionThereIsNothingToDraw)
{
    addReferenceColumn();
    grid.Draw();
    grid.Redraw(true);
    EXPECT_EQ(0, grid.Rows());
}

TEST_F(clsGrid, AListOf250FillsWithoutProgress)
{
    addGroups(250);
    addReferenceColumn();
    draw();
    EXPECT_TRUE(user.progress.empty());
    EXPECT_EQ(0, user.progressCleared);
}

TEST_F(clsGrid, AListOf251ShowsProgressForItsLastRowOnly)
{
    addGroups(251);
    addReferenceColumn();
    draw();
    ASSERT_EQ(1u, user.progress.size());
    EXPECT_EQ(251, user.progress[0].value);
    EXPECT_EQ(251, user.progress[0].maximum);
    EXPECT_EQ("Loading, please wait", user.progress[0].text);
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(clsGrid, ALongListReportsEachSixHundredthRow)
{
    addGroups(1300);
    addReferenceColumn();
    draw();
    ASSERT_EQ(2u, user.progress.size());
    EXPECT_EQ(600, user.progress[0].value);
    EXPECT_EQ(1200, user.progress[1].value);
    EXPECT_EQ(1300, user.progress[1].maximum);
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(clsGrid, TheProgressGoesAlsoWhenTheRowsCantBeRead)
{
    addGroups(251);
    grid.AddColumn({.caption = "Enh", .width = 10, .property = "Enhance"});
    grid.setItemCollection(form.FeeEarnerGroupsCollection());
    form.FeeEarnerGroup(251)->XMLNode().child("orderid").text().set("99999999999");
    grid.setOrderable(true);
    EXPECT_EQ(clsRunTimeError::Overflow, errorOf([&] { grid.Draw(); }));
    EXPECT_EQ(1u, user.progress.size());
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(clsGrid, AHelperObjectGivesTheArgumentOfAPropertyThatTakesOne)
{
    addGroup("A");
    grid.AddColumn(
        {.caption = "Ref", .width = 40, .property = "Reference", .helper = &form, .helperProperty = "FormType"});
    // No property of this list takes an argument, so the error shows that the argument is passed on.
    EXPECT_EQ(clsRunTimeError::WrongNumberOfArguments, errorOf([&] { draw(); }));
    grid.ClearAll();
    grid.AddColumn({.caption = "Ref", .width = 40, .property = "Reference", .helper = &form});
    grid.Draw();
    EXPECT_EQ(QStringList({"A"}), column(1));
}

TEST_F(clsGrid, ShowsTheScheduleOfASampleClaim)
{
    ASSERT_TRUE(form.LoadXML(mdSamplePath("housing-typical.zr3")));
    for (const auto &[caption, width, property] : std::vector<std::tuple<const char *, int, const char *>> {
             {"Fee Earner", 15, "FeeEarnerReference"}, {"Date", 15, "DDate"}, {"DateSerial", 0, "DDateSerial"},
             {"Code", 10, "Code"}, {"Time", 15, "TTime"}, {"Adv", 9, "Advocacy"}})
        grid.AddColumn(
            {.caption = caption, .width = width, .property = property, .sortKey = width == 0, .visible = width != 0});
    grid.setOrderable(true);
    grid.setItemCollection(form.ScheduleOfTimeItemsCollection());
    grid.Draw();
    ASSERT_EQ(int(form.ScheduleOfTimeItemsCollection().size()), grid.Rows());
    ASSERT_GT(grid.Rows(), 5);
    QString before;
    for (int row = 1; row <= grid.Rows(); ++row) {
        grid.SelectRow(row);
        const auto item = form.ScheduleOfTimeItem(grid.SelectedItemData());
        EXPECT_EQ(row, item->OrderID());
        EXPECT_LE(before, item->DDateSerial());
        before = item->DDateSerial();
        EXPECT_EQ(QStringList({item->FeeEarner()->Reference(), item->dDate(), item->DDateSerial(), item->Code(),
                      item->TTime(), item->Advocacy() ? "\u2713" : "\u2717"}),
            rowTexts(row));
    }
}

TEST_F(clsGrid, ShiftMarksFromTheRowThatWasSelectedLast)
{
    addGroups(6);
    addReferenceColumn();
    grid.setMarksRows(true);
    draw();
    const auto marked = [this] { return grid.SelectedItemCollection().size(); };
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers shift) { QTest::keyClick(view(), key, shift); };
    grid.SelectRow(1);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(2u, marked());
    // As Find does, or an undo that shows its item.
    grid.SelectRow(4);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(2u, marked()) << "rows 4 and 5";
    EXPECT_EQ(5, grid.SelectedRow());
    press(Qt::Key_Home, Qt::NoModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(2u, marked()) << "rows 1 and 2";
}
