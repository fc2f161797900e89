// The description and amount columns at the end of the schedule.

#include "controls/oFindLine.h"
#include "editors/oListTotal.h"
#include "tests/editors/clsScheduleTest.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>

namespace {

constexpr int DescriptionColumn = 10;
constexpr int AmountColumn = 11;

class ScheduleColumns : public clsScheduleTest {
protected:
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        addFeeEarners(1);
        Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("78.00");
    }
    static std::unique_ptr<frmScreen> schedule() { return opened(QStringLiteral("Schedule of Time")); }
    static oSGrid &grid(const frmScreen &screen) { return screen.Box<oSGrid>("sgScheduleOfTime"); }
    static QTableView &view(const frmScreen &screen) { return *grid(screen).findChild<QTableView *>(); }
    static QString cell(const frmScreen &screen, int row, int column, int role = Qt::DisplayRole)
    {
        return view(screen).model()->index(row - 1, column).data(role).toString();
    }
    static bool isShown(const frmScreen &screen, int column) { return !view(screen).isColumnHidden(column); }
    static void setGridWidth(frmScreen &screen, int width)
    {
        const int others = screen.width() - view(screen).width();
        screen.resize(width + others, screen.height());
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(ScheduleColumns, StandBehindThoseOfTheList)
{
    const Item item = addItem("15/12/25", "HFN", "03:20");
    item->Description = QStringLiteral("Final hearing, first day");
    const auto screen = schedule();
    EXPECT_EQ(QStringLiteral("Final hearing, first day"), cell(*screen, 1, DescriptionColumn));
    EXPECT_EQ(QStringLiteral("260.00"), cell(*screen, 1, AmountColumn)) << "3 1/3 hours at 78.00";
    const QAbstractItemModel &cells = *view(*screen).model();
    EXPECT_EQ(QStringLiteral("Description"), cells.headerData(DescriptionColumn, Qt::Horizontal).toString());
    EXPECT_EQ(QStringLiteral("Amount"), cells.headerData(AmountColumn, Qt::Horizontal).toString());
    EXPECT_TRUE(cells.index(0, AmountColumn).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(ScheduleColumns, TheAmountFollowsTheRateAtTheNextDrawing)
{
    addItem("15/12/25", "DOT", "01:00");
    const auto screen = schedule();
    EXPECT_EQ(QStringLiteral("78.00"), cell(*screen, 1, AmountColumn));
    Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("1200.00");
    screen->RedrawLists();
    EXPECT_EQ(QStringLiteral("1,200.00"), cell(*screen, 1, AmountColumn));
}

TEST_F(ScheduleColumns, AnAmountThatCantBeComputedSaysWhy)
{
    addItem("15/12/25", "DOT", "");
    addItem("16/12/25", "DOT", "01:00");
    const auto screen = schedule();
    EXPECT_EQ(QStringLiteral("!"), cell(*screen, 1, AmountColumn));
    EXPECT_EQ(QStringLiteral("Schedule item 1 has no time"), cell(*screen, 1, AmountColumn, Qt::AccessibleTextRole));
    EXPECT_EQ(QStringLiteral("78.00"), cell(*screen, 2, AmountColumn));
}

TEST_F(ScheduleColumns, WhereItIsNarrowTheDescriptionGoesFirstAndThenTheAmount)
{
    addItem("15/12/25", "DOT", "01:00");
    const auto screen = schedule();
    std::vector<std::pair<bool, bool>> seen;
    for (int width = 1600; width >= 400; width -= 50) {
        setGridWidth(*screen, width);
        const std::pair<bool, bool> shown {isShown(*screen, DescriptionColumn), isShown(*screen, AmountColumn)};
        if (seen.empty() || seen.back() != shown)
            seen.push_back(shown);
        // The other columns share the remaining width, within rounding.
        int shared = 0;
        for (int column = 0; column < DescriptionColumn; ++column)
            shared += view(*screen).columnWidth(column);
        EXPECT_NEAR(shared * 0.15, view(*screen).columnWidth(0), 6) << width;
        EXPECT_LE(view(*screen).horizontalHeader()->length(), view(*screen).viewport()->width()) << width;
    }
    EXPECT_EQ((std::vector<std::pair<bool, bool>> {{true, true}, {false, true}, {false, false}}), seen);
    setGridWidth(*screen, 1000);
    EXPECT_TRUE(isShown(*screen, DescriptionColumn)) << "and it comes back";
}

TEST_F(ScheduleColumns, FindLooksInThemAlsoWhereTheyHaveNoRoom)
{
    addItem("15/12/25", "DOT", "01:00")->Description = QStringLiteral("Reading the survey");
    addItem("16/12/25", "DOT", "02:00")->Description = QStringLiteral("Preparing the bundle");
    addItem("17/12/25", "DOT", "03:00")->Description = QStringLiteral("Reading the bundle");
    const auto screen = schedule();
    const auto *line = screen->findChild<oFindLine *>(QStringLiteral("sgScheduleOfTimeFind"));
    const auto find = [&](const char *words) {
        key(*screen, Qt::Key_F, Qt::ControlModifier);
        type(*screen->focusWidget(), QString::fromLatin1(words));
        return line->State();
    };
    EXPECT_EQ(QStringLiteral("hit 1 of 2"), find("bundle"));
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    EXPECT_EQ(QStringLiteral("hit 1 of 1"), find("bundle 234.00")) << "three hours at 78.00";
    EXPECT_EQ(3, grid(*screen).SelectedRow());
    setGridWidth(*screen, 400);
    ASSERT_FALSE(isShown(*screen, DescriptionColumn));
    EXPECT_EQ(QStringLiteral("hit 1 of 1"), find("survey"));
    EXPECT_EQ(1, grid(*screen).SelectedRow());
}

TEST_F(ScheduleColumns, TheTotalEndsUnderTheAmounts)
{
    for (int day = 1; day <= 28; ++day)
        addItem(QByteArray::number(day).rightJustified(2, '0').append("/11/25").constData(), "DOT", "01:00");
    const auto screen = schedule();
    const auto *total = screen->findChild<oListTotal *>(QStringLiteral("sgScheduleOfTimeTotal"));
    ASSERT_TRUE(total);
    const QTableView &rows = view(*screen);
    const int column = rows.viewport()->mapTo(screen.get(), QPoint(rows.columnViewportPosition(AmountColumn), 0)).x()
        + rows.columnWidth(AmountColumn);
    const int sum = total->mapTo(screen.get(), QPoint(total->width() - grid(*screen).roomBehindAmounts(), 0)).x()
        - total->contentsMargins().right();
    EXPECT_NEAR(column - Theme::Space8, sum, 2);
}

TEST_F(ScheduleColumns, TenThousandItemsAreReadOnceAndPaintedWithoutPricing)
{
    for (int n = 0; n < 10'000; ++n)
        addItem("15/12/25", "DOT", "01:00")->Description = QStringLiteral("Perusing letter %1").arg(n);
    const auto screen = schedule();
    QElapsedTimer clock;
    clock.start();
    screen->RedrawLists();
    EXPECT_LT(clock.elapsed(), 1000);
    // Painting uses the values already read: a changed rate appears only at the next draw.
    Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("1.00");
    grid(*screen).grab();
    EXPECT_EQ(QStringLiteral("78.00"), cell(*screen, 10'000, AmountColumn));
}
