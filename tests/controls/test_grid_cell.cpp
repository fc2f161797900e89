// The cell of the selected row on which Return acts.

#include "tests/controls/clsGridTest.h"

#include "controls/mdTheme.h"

namespace {

class clsGridCellTest : public clsGridTest {
protected:
    void SetUp() override
    {
        clsGridTest::SetUp();
        addGroups(3);
        grid.AddColumn({.caption = "Ref", .width = 40, .property = "Reference"});
        grid.AddColumn({.caption = "Order", .width = 0, .property = "OrderID"});
        grid.AddColumn({.caption = "Name", .width = 30, .property = "Name"});
        grid.AddColumn({.caption = "Enh", .width = 30, .property = "Enhance"});
        draw();
        grid.SelectRow(1);
        grid.setFocus(Qt::TabFocusReason);
    }
    /// Where Return would act, as "row/column".
    QString activated()
    {
        QSignalSpy spy(&grid, &oSGrid::RowActivated);
        press(Qt::Key_Return);
        return spy.isEmpty() ? QString() : QStringLiteral("%1/%2").arg(spy[0][1].toInt()).arg(spy[0][2].toInt());
    }
    /// Whether a purple line stands in the middle of the cell's lower half.
    bool framed(int row, int column)
    {
        const QRect cell = view()->visualRect(model()->index(row - 1, column - 1));
        const QImage image = view()->viewport()->grab(cell).toImage();
        for (int y = cell.height() / 2; y < cell.height(); ++y)
            if (image.pixelColor(cell.width() / 2, y) == Theme::Purple)
                return true;
        return false;
    }
};

} // namespace

TEST_F(clsGridCellTest, TheArrowsGoFromColumnToColumnAndPassHiddenOnes)
{
    EXPECT_EQ(1, grid.SelectedColumn());
    press(Qt::Key_Right);
    EXPECT_EQ(3, grid.SelectedColumn());
    EXPECT_EQ(QStringLiteral("1/3"), activated());
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("2/4"), activated());
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(QStringLiteral("2/1"), activated());
}

TEST_F(clsGridCellTest, ARedrawKeepsTheColumn)
{
    click(2, Qt::LeftButton, {}, 4);
    for (const bool keepInView : {false, true}) {
        grid.Redraw(keepInView);
        EXPECT_EQ(2, grid.SelectedRow());
        EXPECT_EQ(4, grid.SelectedColumn());
    }
    grid.SelectRow(3);
    EXPECT_EQ(QStringLiteral("3/4"), activated());
    form.DeleteFeeEarnerGroup(1);
    form.DeleteFeeEarnerGroup(1);
    grid.Redraw(true);
    EXPECT_EQ(QStringLiteral("1/4"), activated());
    // New columns start from the first again.
    grid.Draw();
    EXPECT_EQ(QStringLiteral("1/1"), activated());
}

TEST_F(clsGridCellTest, AColumnCanBeGoneTo)
{
    grid.SelectRow(2);
    grid.SelectColumn(3);
    EXPECT_EQ(2, grid.SelectedRow());
    EXPECT_EQ(3, grid.SelectedColumn());
    EXPECT_EQ(1, view()->selectionModel()->selectedRows().size());
    grid.SelectRow(0);
    grid.SelectColumn(4);
    EXPECT_EQ(0, grid.SelectedRow()) << "there is no row to go to a column of";
    EXPECT_EQ(0, grid.SelectedColumn());
}

TEST_F(clsGridCellTest, TheCellIsFramedWhereTheGridIsToldToAndHasTheFocus)
{
    grid.SelectColumn(3);
    EXPECT_FALSE(framed(1, 3));
    grid.setMarksCell(true);
    EXPECT_TRUE(framed(1, 3));
    EXPECT_FALSE(framed(1, 1));
    EXPECT_FALSE(framed(2, 3));
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_FALSE(framed(1, 3));
    EXPECT_TRUE(framed(2, 4));
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    other.setFocus();
    EXPECT_FALSE(framed(2, 4));
}
