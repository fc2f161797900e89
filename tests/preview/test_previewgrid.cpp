// The grid of the preview: its content, scrolling and keys.

#include "controls/mdTheme.h"
#include "tests/preview/clsPreviewTest.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

using Alignment = clsGridAlignment;

class PreviewGridControl : public clsPreviewTest {
protected:
    static void fill(int items)
    {
        addItems(items);
        mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    }
    static QScrollBar &bar() { return *grid().verticalScrollBar(); }
    static QWidget *captions() { return grid().findChild<QWidget *>(QStringLiteral("sgPreviewCaptions")); }
};

} // namespace

TEST_F(PreviewGridControl, PlacesOutsideItAreTheSubscriptError)
{
    grid().AddColumn(QStringLiteral("a"), 50);
    grid().AddRow();
    grid().SetCell(1, 1, QStringLiteral("x"), Alignment::Left);
    for (const auto &place : {std::pair(0, 1), {2, 1}, {1, 0}, {1, 2}}) {
        EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange,
            errorOf([&] { grid().SetCell(place.first, place.second, QString(), Alignment::Left); }));
        EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([&] { grid().Text(place.first, place.second); }));
    }
    EXPECT_TRUE(grid().updatesEnabled()); // an error leaves painting enabled
    EXPECT_EQ(QStringLiteral("x"), grid().Text(1, 1));
}

TEST_F(PreviewGridControl, AChangeWithPaintingOnIsSeenAtOnce)
{
    grid().AddColumn(QStringLiteral("a"), 80);
    grid().AddRow();
    grid().SetCell(1, 1, QStringLiteral("x"), Alignment::Left);
    EXPECT_EQ(1, grid().model()->rowCount());
    EXPECT_EQ(80, grid().columnWidth(0));
    EXPECT_EQ(grid().RowHeight(1), grid().rowHeight(0));
    grid().RemoveAll();
    EXPECT_EQ(0, grid().model()->rowCount());
    EXPECT_EQ(0, grid().model()->columnCount());
}

TEST_F(PreviewGridControl, WithPaintingOffTheOldPictureStands)
{
    fill(3);
    const QImage before = grid().grab().toImage();
    grid().setRedraw(false);
    EXPECT_FALSE(grid().updatesEnabled());
    grid().RemoveAll();
    EXPECT_FALSE(grid().updatesEnabled());
    grid().setRedraw(true);
    EXPECT_TRUE(grid().updatesEnabled());
    EXPECT_NE(before, grid().grab().toImage());
}

TEST_F(PreviewGridControl, SpacersAreFlatAndItemsALineAndFive)
{
    fill(2);
    ASSERT_EQ(11, grid().Rows());
    const int line = std::max(
        QFontMetrics(grid().CellFont(false, false)).height(), QFontMetrics(grid().CellFont(true, false)).height());
    for (int row = 2; row <= 10; row += 2) {
        EXPECT_EQ(5, grid().RowHeight(row)) << row;
        EXPECT_EQ(line + 5, grid().RowHeight(row + 1)) << row;
        EXPECT_EQ(5, grid().rowHeight(row - 1)) << row;
        EXPECT_EQ(line + 5, grid().rowHeight(row)) << row;
    }
}

TEST_F(PreviewGridControl, RowsInViewAndBringingIntoView)
{
    fill(200);
    ASSERT_EQ(407, grid().Rows());
    EXPECT_EQ(1, grid().FirstRowInView());
    const int last = grid().LastRowInView();
    EXPECT_GT(last, 20);
    EXPECT_LT(last, 60);

    grid().BringIntoView(5, 1); // already in view
    EXPECT_EQ(0, bar().value());
    grid().BringIntoView(300, 1);
    EXPECT_EQ(300, grid().LastRowInView());
    EXPECT_GT(grid().FirstRowInView(), 250);
    grid().BringIntoView(101, 1);
    EXPECT_EQ(101, grid().FirstRowInView());
    EXPECT_EQ(0, grid().HiddenAbove(101) + captions()->height());
    grid().BringIntoView(407, 13);
    EXPECT_EQ(407, grid().LastRowInView());
    EXPECT_EQ(bar().maximum(), bar().value());
    grid().BringIntoView(1, 1);
    EXPECT_EQ(0, bar().value());
    EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([] { grid().BringIntoView(408, 1); }));

    grid().RemoveAll();
    EXPECT_EQ(0, grid().FirstRowInView());
    EXPECT_EQ(0, grid().LastRowInView());
}

TEST_F(PreviewGridControl, AShortListIsInViewToItsEnd)
{
    fill(2);
    EXPECT_EQ(1, grid().FirstRowInView());
    EXPECT_EQ(11, grid().LastRowInView());
}

TEST_F(PreviewGridControl, KeysScrollIt)
{
    fill(200);
    grid().setFocus();
    const int line = grid().RowHeight(4) + grid().RowHeight(5);
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(line, bar().value());
    QTest::keyClick(&grid(), Qt::Key_Down);
    QTest::keyClick(&grid(), Qt::Key_Up);
    EXPECT_EQ(line, bar().value());
    QTest::keyClick(&grid(), Qt::Key_End);
    EXPECT_EQ(bar().maximum(), bar().value());
    QTest::keyClick(&grid(), Qt::Key_Home);
    EXPECT_EQ(0, bar().value());
    const int last = grid().LastRowInView();
    QTest::keyClick(&grid(), Qt::Key_PageDown);
    EXPECT_LE(grid().FirstRowInView(), last); // no row is skipped
    EXPECT_GT(grid().FirstRowInView(), last - 6);
    QTest::keyClick(&grid(), Qt::Key_PageUp);
    EXPECT_EQ(0, bar().value());
}

TEST_F(PreviewGridControl, OtherKeysGoToTheWindow)
{
    fill(2);
    class clsListener : public QObject {
    public:
        int keys = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            keys += event->type() == QEvent::KeyPress;
            return false;
        }
    } listener;
    window.installEventFilter(&listener);
    QTest::keyClick(&grid(), Qt::Key_F5);
    QTest::keyClick(&grid(), Qt::Key_A);
    EXPECT_EQ(2, listener.keys);
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(2, listener.keys);
}

TEST_F(PreviewGridControl, ARightClickIsToldAtItsReleaseAndALeftClickDoesNothing)
{
    fill(3);
    QSignalSpy clicks(&grid(), &oPreviewGrid::RightClick);
    QWidget *area = grid().viewport();
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    other.setFocus();
    const QImage before = window.grab().toImage();
    QTest::mouseClick(area, Qt::LeftButton, {}, QPoint(100, 60));
    QTest::mouseDClick(area, Qt::LeftButton, {}, QPoint(100, 60));
    EXPECT_TRUE(clicks.isEmpty());
    EXPECT_EQ(&other, window.focusWidget());
    EXPECT_TRUE(grid().selectionModel()->selectedIndexes().isEmpty());
    EXPECT_EQ(before, window.grab().toImage());

    QTest::mousePress(area, Qt::RightButton, {}, QPoint(100, 60));
    EXPECT_TRUE(clicks.isEmpty());
    QTest::mouseRelease(area, Qt::RightButton, {}, QPoint(101, 61));
    ASSERT_EQ(1, clicks.size());
    EXPECT_EQ(area->mapToGlobal(QPoint(101, 61)), clicks[0][0].toPoint());

    QTest::mouseRelease(area, Qt::MiddleButton, {}, QPoint(100, 60));
    EXPECT_EQ(1, clicks.size());
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, QPoint(5, 5), area->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(area, &byMouse);
    EXPECT_EQ(1, clicks.size());
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(5, 5), area->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(area, &byKey);
    EXPECT_EQ(2, clicks.size());
}

TEST_F(PreviewGridControl, ItIsReadAloudCellByCell)
{
    fill(1);
    EXPECT_EQ(QStringLiteral("sgPreview"), grid().objectName());
    EXPECT_EQ(QStringLiteral("Preview"), grid().accessibleName());
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&grid());
    ASSERT_TRUE(interface && interface->tableInterface());
    EXPECT_EQ(9, interface->tableInterface()->rowCount());
    EXPECT_EQ(QStringLiteral("AB"), interface->tableInterface()->cellAt(4, 1)->text(QAccessible::Name));
    EXPECT_FALSE(grid().model()->flags(grid().model()->index(4, 1)) & Qt::ItemIsEditable);
}

TEST_F(PreviewGridControl, CaptionsStayInViewWhileItScrolls)
{
    fill(200);
    EXPECT_FALSE(captions()->isVisible());
    const QImage top = grid().viewport()->grab().toImage();
    bar().setValue(1000);
    ASSERT_TRUE(captions()->isVisible());
    const QRect band = captions()->geometry();
    EXPECT_GT(band.height(), grid().RowHeight(1) + grid().RowHeight(3));
    const QImage scrolled = grid().grab().toImage().convertToFormat(top.format());
    EXPECT_EQ(top.copy(band), scrolled.copy(band));
    bar().setValue(0);
    EXPECT_FALSE(captions()->isVisible());
}

TEST_F(PreviewGridControl, LinesStandUnderTheCaptionsAndAboveTheTotals)
{
    const QColor edge(0x8F, 0x88, 0x96);
    const QColor hairline(0xEC, 0xE8, 0xEE);
    const QColor stripe(250, 250, 250);
    fill(2);
    const QImage picture = grid().viewport()->grab().toImage();
    // Rows: 1 band, 3 captions, 5 and 7 items, 9 and 11 totals.
    const std::pair<int, QColor> lines[] = {{2, stripe}, {4, edge}, {6, hairline}, {8, edge}, {10, hairline}};
    for (const auto &[row, colour] : lines)
        EXPECT_EQ(colour.rgb(), picture.pixelColor(3, grid().rowViewportPosition(row - 1) + 2).rgb()) << row;
    EXPECT_EQ(QColor(Qt::white).rgb(),
        picture.pixelColor(grid().viewport()->width() - 3, grid().rowViewportPosition(3) + 2).rgb());
}

TEST_F(PreviewGridControl, EachLineBetweenTheRowsIsOneDotThickAtAScaleOfOneAndAQuarter)
{
    const QColor hairline(0xEC, 0xE8, 0xEE);
    fill(9);
    QImage picture(grid().viewport()->size() * 1.25, QImage::Format_RGB32);
    picture.setDevicePixelRatio(1.25);
    grid().viewport()->render(&picture);
    int lines = 0;
    for (int y = 1; y < picture.height(); ++y) {
        if (picture.pixelColor(4, y) != hairline)
            continue;
        ++lines;
        EXPECT_NE(hairline, picture.pixelColor(4, y - 1)) << y;
    }
    EXPECT_EQ(9, lines) << "below each item but the last, and between the totals";
}

namespace {

/// The preview with a large desktop font, on a small screen.
class PreviewInALargeFont : public PreviewGridControl {
protected:
    void SetUp() override
    {
        QFont large(QStringLiteral("DejaVu Sans"), 16);
        QApplication::setFont(large);
        PreviewGridControl::SetUp();
        window.resize(960, 400);
        ASSERT_TRUE(QTest::qWaitFor([this] { return sheet->width() == 960; }));
    }
    void TearDown() override
    {
        PreviewGridControl::TearDown();
        QApplication::setFont(m_before);
    }
    static QRect cell(int row, int column)
    {
        return {grid().columnViewportPosition(column - 1), grid().rowViewportPosition(row - 1),
            grid().ColumnWidth(column), grid().RowHeight(row)};
    }

private:
    QFont m_before = QApplication::font();
};

} // namespace

TEST_F(PreviewInALargeFont, TheWordOverTheColumnsIsNotBroken)
{
    fill(1);
    EXPECT_EQ(QStringLiteral("ration"), grid().Text(1, 6));
    EXPECT_EQ(grid().RowHeight(5), grid().RowHeight(1)) << "a line, as an item has";
    // The text continues over the next column, which is empty there.
    const QFontMetrics metrics(grid().CellFont(true, false));
    const int beyond = metrics.horizontalAdvance(QStringLiteral("ration")) - grid().ColumnWidth(6);
    ASSERT_GT(beyond, 3) << "it has to be wider than its column for this test to tell anything";
    const QImage picture = grid().viewport()->grab().toImage();
    bool ink = false;
    const QRect next = cell(1, 7);
    for (int y = next.top(); y <= next.bottom(); ++y)
        for (int x = next.left() + 1; x <= next.left() + beyond; ++x)
            ink = ink || picture.pixelColor(x, y).lightness() < 100;
    EXPECT_TRUE(ink);
}

TEST_F(PreviewInALargeFont, FiguresAndCaptionsAreWrittenSmallerBeforeAnythingIsCut)
{
    addItem("99:59", "ACT", "28/12/26");
    Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("123.45");
    makeLists();
    mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    ASSERT_EQ(QStringLiteral("12,342.94"), grid().Text(9, 5)) << "99 hours and 59 minutes at 123.45";
    const QFontMetrics metrics(grid().CellFont(false, false));
    ASSERT_GT(metrics.horizontalAdvance(grid().Text(9, 5)), grid().ColumnWidth(5));
    for (int row = 1; row <= grid().Rows(); ++row)
        for (int column = 1; column <= grid().Columns(); ++column)
            EXPECT_EQ(QString(), grid().ToolTipAt(cell(row, column).center())) << row << ' ' << column;
    // "Code" in bold at the desktop's size would overlap the adjacent captions.
    const QImage picture = grid().viewport()->grab().toImage();
    const QRect code = cell(3, 4);
    for (int y = code.top(); y <= code.bottom(); ++y)
        for (const int x : {code.left(), code.right()})
            EXPECT_GT(picture.pixelColor(x, y).lightness(), 200) << y;
}

TEST_F(PreviewGridControl, ACellCutShortTellsItsTextInATooltip)
{
    fill(1);
    Form->FeeEarner(1)->Reference = QStringLiteral("a reference <b> that is wider than its column ever was");
    mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    const auto toolTip = [](int row, int column) {
        return grid().ToolTipAt(
            QPoint(grid().columnViewportPosition(column - 1) + 5, grid().rowViewportPosition(row - 1) + 2));
    };
    EXPECT_EQ(QStringLiteral("<p>a reference &lt;b&gt; that is wider than its column ever was</p>"), toolTip(5, 2));
    EXPECT_EQ(QString(), toolTip(5, 3));
    EXPECT_EQ(QString(), toolTip(4, 2));
    EXPECT_EQ(QString(), grid().ToolTipAt(QPoint(5, grid().viewport()->height() - 1)));
}

TEST_F(PreviewGridControl, TheSheetIsCentredAndOfLimitedWidth)
{
    window.resize(1366, 600);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheet->width() == 1366; }));
    EXPECT_EQ(QStringLiteral("pctPreview"), sheet->objectName());
    EXPECT_EQ(1120, grid().width() + 4);
    EXPECT_LE(std::abs(grid().geometry().left() - (1366 - grid().geometry().right() - 1)), 1);
    EXPECT_EQ(sheet->height(), grid().geometry().bottom() + 1);
    grid().clearFocus();
    const QImage picture = sheet->grab().toImage();
    // On all sides except the bottom, where the sheet continues below the edge.
    const QRect frame = grid().geometry().adjusted(-2, -2, 2, 0);
    const int right = frame.right();
    for (const QPoint place : {QPoint(frame.left(), 300), QPoint(right, 300), QPoint(600, frame.top())})
        EXPECT_EQ(QColor(204, 204, 204), picture.pixelColor(place)) << place.x();
    for (const QPoint place : {QPoint(frame.left() + 1, 300), QPoint(right - 1, 300), QPoint(600, frame.top() + 1)})
        EXPECT_EQ(QColor(Theme::Paper), picture.pixelColor(place)) << place.x();
    grid().setFocus();
    window.activateWindow();
    if (QTest::qWaitForWindowActive(&window)) {
        EXPECT_EQ(QColor(110, 15, 108), sheet->grab().toImage().pixelColor(grid().x() - 2, 300));
    }
    window.resize(700, 600);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheet->width() == 700; }));
    EXPECT_EQ(700 - 48, grid().width() + 4);
}

TEST_F(PreviewGridControl, ALargerFontMakesHigherRows)
{
    fill(2);
    const int item = grid().rowHeight(4);
    QFont font = QApplication::font();
    const QFont before = font;
    font.setPointSize(20);
    QApplication::setFont(font);
    QCoreApplication::processEvents();
    EXPECT_GT(grid().rowHeight(4), item * 3 / 2);
    EXPECT_EQ(10, grid().rowHeight(3));
    mdDrawPreview(clsPreviewKind::ScheduleOfTime); // captions may wrap to a second line, but no word is split
    EXPECT_LE(grid().RowHeight(3), 2 * grid().RowHeight(5));
    QApplication::setFont(before);
    QCoreApplication::processEvents();
    EXPECT_EQ(item, grid().rowHeight(4));
}

TEST_F(PreviewGridControl, PaintsOnlyTheRowsInView)
{
    fill(2000);
    ASSERT_EQ(4007, grid().Rows());
    // The last rows are found from the end of the list, without going through those above: the progress shows it.
    grid().BringIntoView(4007, 1);
    EXPECT_EQ(4007, grid().LastRowInView());
    EXPECT_EQ(QStringLiteral("2000"), grid().Text(4003, 1));
    EXPECT_FALSE(grid().grab().isNull());
}
