// Widths, heights, positions and the frame of an `oSGrid`.

#include "tests/controls/clsGridTest.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"

#include <QApplication>
#include <QScrollBar>

using clsGridLook = clsGridTest;

namespace {

/// Sets the desktop's font to another size for as long as this object lives.
class clsDesktopFont {
public:
    explicit clsDesktopFont(int points)
        : m_before(QApplication::font())
    {
        QFont font = m_before;
        font.setPointSize(points);
        QApplication::setFont(font);
        QCoreApplication::processEvents();
    }
    ~clsDesktopFont()
    {
        QApplication::setFont(m_before);
        QCoreApplication::processEvents();
    }
    clsDesktopFont(const clsDesktopFont &) = delete;

private:
    QFont m_before;
};

} // namespace

TEST_F(clsGridLook, ColumnsTakeTheirShareOfTheWidthAndTheLastOneTheRest)
{
    addGroups(1);
    grid.AddColumn({.caption = "Ref", .width = 20, .property = "Reference"});
    grid.AddColumn({.caption = "Serial", .width = 0, .property = "Name"});
    grid.AddColumn({.caption = "Hidden", .width = 50, .property = "Name", .visible = false});
    grid.AddColumn({.caption = "Name", .width = 40, .property = "Name"});
    draw();
    for (const int width : {620, 1020}) {
        grid.resize(width, 300);
        EXPECT_EQ((view()->width() - 20) / 5, view()->columnWidth(0)) << width;
        EXPECT_EQ(view()->viewport()->width() - view()->columnWidth(0), view()->columnWidth(3)) << width;
    }
    EXPECT_TRUE(view()->isColumnHidden(1));
    EXPECT_TRUE(view()->isColumnHidden(2));
    EXPECT_FALSE(view()->horizontalScrollBar()->isVisible());
}

TEST_F(clsGridLook, WithALargeFontTheColumnsLeaveRoomForTheScrollBar)
{
    addGroups(100);
    grid.AddColumn({.caption = "Ref", .width = 60, .property = "Reference"});
    grid.AddColumn({.caption = "Name", .width = 40, .property = "Name"});
    draw();
    for (const int points : {10, 20}) {
        const clsDesktopFont font(points);
        ASSERT_TRUE(view()->verticalScrollBar()->isVisible());
        const int room = std::min(view()->width() - 20, view()->viewport()->width());
        EXPECT_NEAR(room * 0.6, view()->columnWidth(0), 0.5) << points;
        EXPECT_LE(view()->columnWidth(0) + view()->columnWidth(1), view()->viewport()->width()) << points;
    }
}

TEST_F(clsGridLook, TheArrowsAreSeenWholeBesideTheRows)
{
    const clsDesktopFont font(10);
    grid.setOrderable(true);
    addGroups(2);
    addReferenceColumn();
    draw();
    QTest::qWait(0);
    const int room = Theme::RingRoom;
    for (const char *name : {"cmdUp", "cmdDown"}) {
        const auto &arrow = *grid.findChild<oCustomButton *>(name);
        EXPECT_EQ(QSize(28, 32), arrow.size() - 2 * QSize(room, room)) << name;
        const QRect seen(arrow.mapTo(&grid, QPoint(room, room)), QSize(28, 32));
        EXPECT_EQ(view()->geometry().right() + 1 + Theme::Space8, seen.left()) << name;
        EXPECT_TRUE(grid.rect().contains(seen)) << name;
    }
}

TEST_F(clsGridLook, WithASmallFontTheRowsKeepTheirHeightAndAllElseShrinks)
{
    const auto arrowHeight
        = [this] { return grid.findChild<oCustomButton *>("cmdUp")->sizeHint().height() - 2 * Theme::RingRoom; };
    const clsDesktopFont usual(10);
    const int row = mdGridRowHeight();
    const int heading = mdGridHeadingHeight();
    const int arrow = arrowHeight();
    const clsDesktopFont small(8);
    EXPECT_EQ(row, mdGridRowHeight());
    EXPECT_EQ(heading, mdGridHeadingHeight());
    EXPECT_LT(arrowHeight(), arrow);
}

TEST_F(clsGridLook, KeepInViewPutsTheSelectionAsFarDownAsItGoes)
{
    addGroups(100);
    addReferenceColumn();
    draw();
    const auto lastRowInView = [&] { return view()->rowAt(view()->viewport()->height() - view()->rowHeight(0) / 2); };
    grid.SelectRow(50);
    grid.Redraw(true);
    EXPECT_NEAR(49, lastRowInView(), 1);
    EXPECT_LE(view()->visualRect(model()->index(49, 0)).bottom(), view()->viewport()->height());
    grid.SelectRow(2);
    grid.Redraw(true);
    EXPECT_EQ(0, view()->rowAt(0));
    grid.SelectRow(0);
    grid.Redraw(true);
    EXPECT_TRUE(view()->viewport()->rect().contains(view()->visualRect(model()->index(99, 0))));
}

TEST_F(clsGridLook, WithoutKeepInViewTheListStandsStill)
{
    addGroups(100);
    addReferenceColumn();
    draw();
    grid.SelectRow(60);
    view()->verticalScrollBar()->setValue(7);
    grid.Redraw(false);
    EXPECT_EQ(7, view()->verticalScrollBar()->value());
    EXPECT_EQ(60, grid.SelectedRow());
}

TEST_F(clsGridLook, AWrappedTextMakesItsRowHigher)
{
    addGroup("short", "short");
    addGroup(
        "long", "a long name that goes on and on and on until it needs more lines than one to stand in its column");
    grid.AddColumn({.caption = "Name", .width = 30, .property = "Name", .bold = true});
    draw();
    EXPECT_EQ(view()->rowHeight(0), view()->rowHeight(1));
    grid.ClearAll();
    grid.AddColumn({.caption = "Name", .alignment = clsGridAlignment::LeftWrapped, .width = 30, .property = "Name"});
    grid.AddColumn({.caption = "Ref", .width = 70, .property = "Reference"});
    grid.Draw();
    EXPECT_GT(view()->rowHeight(1), view()->rowHeight(0));
    const int narrow = view()->rowHeight(1);
    grid.resize(2000, 300);
    EXPECT_LT(view()->rowHeight(1), narrow);
}

TEST_F(clsGridLook, AnEmptyGridSaysWhatToDo)
{
    addReferenceColumn();
    grid.setEmptyText("No groups yet. Add one to begin.");
    draw();
    EXPECT_EQ("No groups yet. Add one to begin.", view()->accessibleDescription());
    const QImage empty = view()->grab().toImage();
    grid.setEmptyText("");
    EXPECT_NE(empty, view()->grab().toImage());
    grid.setEmptyText("No groups yet. Add one to begin.");
    addGroup("A");
    grid.Redraw(true);
    EXPECT_EQ("", view()->accessibleDescription());
}

TEST_F(clsGridLook, TheFrameShowsTheFocusWithoutAShift)
{
    addGroups(2);
    addReferenceColumn();
    draw();
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    other.setFocus();
    const QRect viewport = view()->viewport()->geometry();
    QImage image = view()->grab().toImage();
    EXPECT_EQ(QColor(204, 204, 204), image.pixelColor(0, 60));
    EXPECT_NE(QColor(204, 204, 204), image.pixelColor(1, 60));
    grid.setFocus();
    image = view()->grab().toImage();
    EXPECT_EQ(QColor(110, 15, 108), image.pixelColor(0, 60));
    EXPECT_EQ(QColor(110, 15, 108), image.pixelColor(1, 60));
    EXPECT_EQ(viewport, view()->viewport()->geometry());
}

namespace {

/// The rows whose pixel near the right end of the column has this colour.
std::vector<int> tintedRows(oGridView &view, int column, const QColor &colour)
{
    const QImage picture = view.viewport()->grab().toImage();
    std::vector<int> rows;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QRect cell = view.visualRect(view.model()->index(row, column));
        const QPoint dot(cell.right() - 2, cell.top() + 3);
        if (picture.rect().contains(dot) && picture.pixelColor(dot) == colour)
            rows.push_back(row);
    }
    return rows;
}

} // namespace

TEST_F(clsGridLook, TheWholeRowUnderThePointerIsTintedAndNoOther)
{
    addGroups(100);
    grid.AddColumn({.caption = "Ref", .width = 50, .property = "Reference"});
    grid.AddColumn({.caption = "Name", .width = 50, .property = "Name"});
    draw();
    grid.SelectRow(0);
    view()->scrollToTop();
    const std::vector<int> second {1};
    const std::vector<int> none;
    const auto expect = [this](const std::vector<int> &rows, const char *when) {
        for (const int column : {0, 1})
            EXPECT_EQ(rows, tintedRows(*view(), column, Theme::Hover)) << when << column;
    };
    const QPoint place = middleOf(2);
    QTest::mouseMove(view()->viewport(), place);
    QCoreApplication::processEvents();
    expect(second, "pointed at");
    // Qt goes on to treat the cell as the one under the pointer; the grid's own row counts.
    QEvent left(QEvent::Leave);
    QCoreApplication::sendEvent(view()->viewport(), &left);
    expect(none, "left");
    QEnterEvent entered(place, view()->viewport()->mapTo(&window, place), view()->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view()->viewport(), &entered);
    expect(second, "a window opened under the pointer");
}

TEST_F(clsGridLook, TheTintStaysUnderThePointerWhenTheListScrolls)
{
    addGroups(100);
    addReferenceColumn();
    draw();
    grid.SelectRow(0);
    view()->scrollToTop();
    QTest::mouseMove(view()->viewport(), middleOf(2));
    QCoreApplication::processEvents();
    ASSERT_EQ(std::vector<int> {1}, tintedRows(*view(), 0, Theme::Hover));
    const int top = view()->rowAt(0);
    view()->verticalScrollBar()->setValue(
        view()->verticalScrollBar()->value() + 5 * view()->verticalScrollBar()->singleStep());
    const int scrolled = view()->rowAt(0) - top;
    ASSERT_GT(scrolled, 0);
    EXPECT_EQ(std::vector<int> {view()->rowAt(view()->viewport()->mapFromGlobal(QCursor::pos()).y())},
        tintedRows(*view(), 0, Theme::Hover));
}
