// The preview of the schedule of time.

#include "base/clsQuietUserInterface.h"
#include "preview/mdExportPreviewScheduleOfTime.h"
#include "tests/preview/clsPreviewTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <map>

namespace {

using Alignment = clsGridAlignment;
using Error = clsRunTimeError;

constexpr int FirstItemRow = 5;

class SchedulePreview : public clsPreviewTest {
protected:
    static void draw()
    {
        makeLists();
        mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    }
    static QStringList emptyRow() { return QStringList(QList<QString>(13)); }
    /// Two groups at 60 with a fee earner each, and items of 1, 2 and 3 hours, the second of which is documents and by
    /// the second fee earner.
    static void SetUpClaim()
    {
        Form = std::make_unique<clsZR3Form>();
        for (const char *reference : {"A", "B"}) {
            const auto group = Form->AddFeeEarnerGroup();
            group->Reference = QString::fromLatin1(reference);
            group->HourlyRate = QStringLiteral("60.00");
            const auto feeEarner = Form->AddFeeEarner();
            feeEarner->Reference = *reference == 'A' ? QStringLiteral("AB") : QStringLiteral("CD");
            feeEarner->GroupUniqueID = group->UniqueID();
        }
        addItem("01:00");
        addItem("02:00", "DOT")->FeeEarnerUniqueID = Form->FeeEarner(2)->UniqueID();
        addItem("03:00");
    }
};

/// The rows that the schedule of a sample must show, from the expected texts of its export, which include every figure;
/// zero is shown as an empty cell here.
class clsExpectedSchedule {
public:
    std::vector<QStringList> items;
    QStringList times = QStringList(QList<QString>(13));
    QStringList money = QStringList(QList<QString>(13));

    explicit clsExpectedSchedule(const QString &sample)
    {
        QFile file(mdSamplePath(sample + QStringLiteral(".sheets.json")));
        if (!file.open(QIODevice::ReadOnly))
            return;
        const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object();
        const QString page = all[QLatin1String("FormType")].toString() == QLatin1String("Claim1")
            ? QStringLiteral("Claim1 P5")
            : QStringLiteral("Claim1A P10");
        std::map<int, QJsonArray> sheets;
        for (const QJsonValue &value : all[QLatin1String("Sheets")].toArray())
            if (const QJsonObject sheet = value.toObject(); sheet[QLatin1String("Template")].toString() == page)
                sheets[sheet[QLatin1String("Name")].toString().section(u'(', 1).chopped(1).toInt()]
                    = sheet[QLatin1String("Ops")].toArray();
        for (const auto &[number, operations] : sheets)
            read(operations);
    }

private:
    static QString shown(const QString &typed)
    {
        return typed == QLatin1String("0.00") || typed == QLatin1String("00:00") ? QString() : typed.trimmed();
    }

    void read(const QJsonArray &operations)
    {
        qsizetype column = 0;
        bool newRow = true;
        for (const QJsonValue &value : operations) {
            const QJsonArray operation = value.toArray();
            const QString what = operation[0].toString();
            if (what == QLatin1String("cell")) {
                if (newRow)
                    items.push_back(QStringList(QList<QString>(13)));
                newRow = false;
                items.back()[column] = shown(operation[1].toString());
            } else if (what == QLatin1String("right")) {
                column += operation[1].toInt();
            } else if (what == QLatin1String("nextrow")) {
                column = 0;
                newRow = true;
            } else if (what == QLatin1String("replace")) {
                readTotal(operation[1].toString(), shown(operation[2].toString()));
            }
        }
        for (QStringList &item : items)
            if (item[11] == QLatin1String("0"))
                item[11].clear();
    }

    void readTotal(const QString &placeholder, const QString &text)
    {
        const QStringList timeNames = {"{actm}", "{dtm}", "{htm}", "{ttm}", "{wtm}"};
        const QStringList moneyNames = {"{actl}", "{dtl}", "{htl}", "{ttl}", "{wtl}"};
        if (const qsizetype at = timeNames.indexOf(placeholder); at >= 0 && !text.isEmpty())
            times[4 + at] = text;
        if (const qsizetype at = moneyNames.indexOf(placeholder); at >= 0 && !text.isEmpty())
            money[4 + at] = text;
        if (placeholder == QLatin1String("{total}") && !text.isEmpty())
            money[12] = text;
    }
};

class SamplePreview : public SchedulePreview, public testing::WithParamInterface<std::pair<const char *, int>> { };

} // namespace

TEST_P(SamplePreview, ShowsEveryLineThatWasWorkedOutForIt)
{
    const auto [name, count] = GetParam();
    const QString sample = QString::fromLatin1(name);
    const clsExpectedSchedule expected(sample);
    ASSERT_EQ(size_t(count), expected.items.size());
    ASSERT_TRUE(Form->LoadXML(mdSamplePath(sample + QStringLiteral(".zr3"))));
    const QString before = Form->XMLOutput();

    draw();

    ASSERT_EQ(3 + 2 * count + 4, grid().Rows());
    int row = FirstItemRow;
    for (const QStringList &item : expected.items) {
        EXPECT_EQ(item, rowTexts(row));
        EXPECT_EQ(emptyRow(), rowTexts(row - 1));
        row += 2;
    }
    EXPECT_EQ(expected.times, rowTexts(row));
    EXPECT_EQ(expected.money, rowTexts(row + 2));
    EXPECT_EQ(before, Form->XMLOutput());
}

INSTANTIATE_TEST_SUITE_P(, SamplePreview,
    testing::Values(std::pair("housing-typical", 40), std::pair("many-sheets", 100), std::pair("odd-characters", 12),
        std::pair("advocacy-only", 6), std::pair("care-typical", 45), std::pair("empty", 0),
        std::pair("many-sheets-1a", 70)),
    [](const auto &sample) { return QString::fromLatin1(sample.param.first).replace(u'-', u'_').toStdString(); });

TEST_F(SchedulePreview, ColumnsBandAndCaptions)
{
    grid().resize(1030, 500);
    draw();
    const int shares[] = {4, 9, 10, 6, 7, 7, 7, 7, 7, 10, 10, 6, 10};
    ASSERT_EQ(13, grid().Columns());
    for (int column = 1; column <= 13; ++column)
        EXPECT_EQ(shares[column - 1] * 10, grid().ColumnWidth(column)) << column;

    QStringList band = emptyRow();
    band[4] = QStringLiteral("Prepa");
    band[5] = QStringLiteral("ration");
    EXPECT_EQ(band, rowTexts(1));
    EXPECT_EQ(Alignment::Right, grid().Cell(1, 5).alignment);
    EXPECT_EQ(Alignment::LeftWrapped, grid().Cell(1, 6).alignment);
    EXPECT_TRUE(grid().Cell(1, 5).bold && grid().Cell(1, 6).bold);

    EXPECT_EQ(emptyRow(), rowTexts(2));
    EXPECT_EQ((QStringList {"", "FE", "Date", "Code", "Att / Conf", "Docs", "Hrng", "Trvl", "Wtng", "Rate", "Bsc Clm",
                  "Enh", "Clm"}),
        rowTexts(3));
    for (int column = 2; column <= 13; ++column) {
        EXPECT_TRUE(grid().Cell(3, column).bold);
        EXPECT_EQ(Alignment::CentreWrapped, grid().Cell(3, column).alignment);
    }
}

TEST_F(SchedulePreview, TheSplitWordReadsAcrossTheLineBetweenItsColumns)
{
    draw();
    const int line = grid().columnViewportPosition(5);
    const QImage picture = grid().viewport()->grab().toImage();
    const auto inked = [&](int x) {
        for (int y = 0; y < grid().RowHeight(1); ++y)
            if (picture.pixelColor(x, y).lightness() < 160)
                return true;
        return false;
    };
    // At most the gap between two letters on either side.
    EXPECT_TRUE(inked(line - 1) || inked(line - 2) || inked(line - 3));
    EXPECT_TRUE(inked(line) || inked(line + 1) || inked(line + 2));
    EXPECT_FALSE(inked(line - 60));
    EXPECT_FALSE(inked(line + 60));
}

TEST_F(SchedulePreview, WithoutItemsEveryTotalIsEmpty)
{
    draw();
    ASSERT_EQ(7, grid().Rows());
    EXPECT_EQ(QStringLiteral("Prepa"), grid().Text(1, 5));
    EXPECT_EQ(QStringLiteral("FE"), grid().Text(3, 2));
    for (int row = 4; row <= 7; ++row)
        EXPECT_EQ(emptyRow(), rowTexts(row));
    EXPECT_EQ(grid().RowHeight(3), grid().RowHeight(5)); // the rows of the totals are still there
    EXPECT_EQ(grid().RowHeight(3), grid().RowHeight(7));
    EXPECT_TRUE(user.progress.empty());
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(SchedulePreview, AnItemWithoutADateHasNoDash)
{
    addItem("01:00", "ACT", "31/12/29");
    draw();
    EXPECT_EQ(QString(), grid().Text(FirstItemRow, 3));
}

TEST_F(SchedulePreview, TheEnhancementIsPlain)
{
    Form->FeeEarnerGroup(1)->Enhance = true;
    addItem();
    const struct {
        const char *rate;
        const char *shown;
    } rows[] = {{"0", ""}, {"0.00", ""}, {"12.5", "12.5"}, {"12.50", "12.5"}, {"25", "25"}, {"33.3333", "33.3333"}};
    for (const auto &row : rows) {
        Form->FeeEarnerGroup(1)->EnhancementRate = QString::fromLatin1(row.rate);
        draw();
        EXPECT_EQ(QString::fromLatin1(row.shown), grid().Text(FirstItemRow, 12)) << row.rate;
    }
}

TEST_F(SchedulePreview, AnItemWithoutTimeKeepsItsLine)
{
    addItem("00:00");
    draw();
    QStringList line = emptyRow();
    line[0] = QStringLiteral("1");
    line[1] = QStringLiteral("AB");
    line[2] = QStringLiteral("03/02/26");
    line[3] = QStringLiteral("ACT");
    line[9] = QStringLiteral("60.00");
    EXPECT_EQ(line, rowTexts(FirstItemRow));
}

TEST_F(SchedulePreview, ATimeStandsInOneOfFiveColumns)
{
    addItem("00:10", "ACT");
    addItem("00:20", "DOC");
    addItem("00:30", "HEA");
    addItem("00:40", "ACT")->Travel = true;
    addItem("00:50", "ACT")->Waiting = true;
    draw();
    for (int column = 5; column <= 9; ++column)
        for (int item = 0; item < 5; ++item)
            EXPECT_EQ(column == 5 + item ? QStringLiteral("00:%1").arg(10 * (item + 1)) : QString(),
                grid().Text(FirstItemRow + 2 * item, column));
    EXPECT_EQ(Alignment::Right, grid().Cell(FirstItemRow, 1).alignment);
    for (int column : {2, 3, 4, 5, 10, 11, 13}) {
        EXPECT_EQ(Alignment::Centre, grid().Cell(FirstItemRow, column).alignment) << column;
        EXPECT_FALSE(grid().Cell(FirstItemRow, column).bold);
    }
    const int totals = FirstItemRow + 10;
    EXPECT_TRUE(grid().Cell(totals, 5).bold);
    EXPECT_FALSE(grid().Cell(totals + 2, 5).bold);
    EXPECT_FALSE(grid().Cell(totals + 2, 13).bold);
    // 10 min. at 60, 20 min. at 60, 30 min. at 60, 40 min. at 20, 50 min. at 20
    EXPECT_EQ((QStringList {"", "", "", "", "10.00", "20.00", "30.00", "13.33", "16.67", "", "", "", "90.00"}),
        rowTexts(totals + 2));
}

TEST_F(SchedulePreview, ShowsTheListsAsTheyWereLastMade)
{
    addItems(3);
    Form->ScheduleOfTimeItem(2)->Advocacy = true;
    draw();
    ASSERT_EQ(13, grid().Rows());
    // Neither of these updates the lists.
    Form->FormType = QStringLiteral("Claim1A");
    Form->ExcludeNonAdvocacy = true;
    mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    EXPECT_EQ(13, grid().Rows());
    EXPECT_EQ(QStringLiteral("2"), grid().Text(FirstItemRow + 2, 1));
    EXPECT_EQ(2, Form->ScheduleOfTimeItem(2)->SOTItemNumber) << "a preview writes nothing back";
    makeLists();
    mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    ASSERT_EQ(9, grid().Rows());
    EXPECT_EQ(QStringLiteral("1"), grid().Text(FirstItemRow, 1));
    EXPECT_EQ(QStringLiteral("70.00"), grid().Text(FirstItemRow, 13));
    EXPECT_EQ(QStringLiteral("70.00"), grid().Text(9, 13));
}

TEST_F(SchedulePreview, ItsRoutinesDrawTheListsAsTheyStand)
{
    addItems(2);
    Form->RenderScheduleOfTimeItemsForExport();
    addItem();
    mdExportPreviewScheduleOfTimeInit();
    EXPECT_FALSE(grid().updatesEnabled());
    mdExportPreviewScheduleOfTimeDraw(*Form);
    EXPECT_FALSE(grid().updatesEnabled());
    mdExportPreviewScheduleOfTimeDeInit();
    EXPECT_TRUE(grid().updatesEnabled());
    ASSERT_EQ(3 + 4 + 4, grid().Rows()); // two lines
    EXPECT_EQ(QStringLiteral("180.00"), grid().Text(11, 13)); // and the total of all three
}

TEST_F(SchedulePreview, AnItemThatWasDeletedIsStillShownByAListThatHoldsIt)
{
    addItems(3);
    Form->ScheduleOfTimeItem(2)->Code = QStringLiteral("GONE");
    Form->RenderScheduleOfTimeItemsForExport();
    Form->DeleteScheduleOfTimeItem(2);
    mdExportPreviewScheduleOfTimeInit();
    mdExportPreviewScheduleOfTimeDraw(*Form);
    mdExportPreviewScheduleOfTimeDeInit();
    EXPECT_EQ(QStringLiteral("GONE"), grid().Text(FirstItemRow + 2, 4));
    EXPECT_EQ(QStringLiteral("60.00"), grid().Text(FirstItemRow + 2, 13));
    EXPECT_EQ(QStringLiteral("120.00"), grid().Text(grid().Rows(), 13));
}

TEST_F(SchedulePreview, ReportsItsProgressInThisWindowOnly)
{
    addItems(3);
    bool enabled = true;
    class clsWatch final : public clsQuietUserInterface {
    public:
        std::function<void(int, int, const QString &)> onProgress;
        int cleared = 0;
        void showProgress(int value, int maximum, const QString &text) override { onProgress(value, maximum, text); }
        void clearProgress() override { ++cleared; }
    } watch;
    const clsUserInterfaceScope scope(watch);
    int calls = 0;
    watch.onProgress = [&](int value, int maximum, const QString &text) {
        EXPECT_EQ(++calls, value);
        EXPECT_EQ(3, maximum);
        EXPECT_EQ(QStringLiteral("Drawing"), text);
        enabled = enabled && window.isEnabled();
        EXPECT_FALSE(grid().updatesEnabled());
        mdDrawPreview(clsPreviewKind::AdditionalInformation); // an event handled while progress is shown
    };
    draw();
    EXPECT_EQ(3, calls);
    EXPECT_EQ(1, watch.cleared);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(13, grid().Columns());
}

TEST_F(SchedulePreview, AnErrorLeavesTheWindowUsable)
{
    addItems(2);
    draw();
    Form.reset();
    EXPECT_EQ(Error::ObjectNotSet, errorOf([] { mdDrawPreview(clsPreviewKind::ScheduleOfTime); }));
    EXPECT_TRUE(grid().updatesEnabled());
    EXPECT_TRUE(window.isEnabled());
    Form = std::make_unique<clsZR3Form>();
    draw(); // the next drawing is complete
    EXPECT_EQ(7, grid().Rows());
}

// Figures that can't be computed

namespace {

/// The columns of a row that can't be computed, with their common reason.
struct clsFailedRow {
    QList<int> columns;
    QString why;
};

} // namespace

class FailedFigures : public SchedulePreview {
protected:
    static clsFailedRow failedIn(int row)
    {
        clsFailedRow result;
        for (int column = 1; column <= grid().Columns(); ++column) {
            const QString why = grid().WhyNot(row, column);
            EXPECT_EQ(!why.isEmpty(), grid().Text(row, column) == QLatin1String("!")) << row << "/" << column;
            if (why.isEmpty())
                continue;
            result.columns << column;
            if (!result.why.contains(why))
                result.why += (result.why.isEmpty() ? QString() : QStringLiteral("; ")) + why;
        }
        return result;
    }
    static void expectFailed(int row, const QList<int> &columns, const char *why)
    {
        const clsFailedRow failed = failedIn(row);
        EXPECT_EQ(columns, failed.columns) << "row " << row;
        EXPECT_EQ(QString::fromUtf8(why), failed.why) << "row " << row;
    }
    static int timesRow() { return grid().Rows() - 2; }
    static int moneyRow() { return grid().Rows(); }
    static QString toolTip(int row, int column)
    {
        grid().BringIntoView(row, 1);
        return grid().ToolTipAt(
            QPoint(grid().columnViewportPosition(column - 1) + 5, grid().rowViewportPosition(row - 1) + 2));
    }
};

TEST_F(FailedFigures, OfAnItemAreMarkedAndAllOthersAreThere)
{
    const struct {
        const char *what;
        void (*spoil)(const Item &item);
        QList<int> columns;
        const char *why;
    } rows[] = {
        {"fee earner", [](const Item &item) { item->FeeEarnerUniqueID = QStringLiteral("ID99"); }, {2, 10, 11, 12, 13},
            "Schedule item 2 names a fee earner that no longer exists"},
        {"group", [](const Item &) { Form->FeeEarner(2)->GroupUniqueID = QStringLiteral("ID99"); }, {10, 11, 12, 13},
            "Schedule item 2 names the fee earner CD, whose group no longer exists"},
        {"enhancement", [](const Item &item) { item->IncludeInEnhancements = true; }, {12, 13},
            "Schedule item 2 names no enhancement"},
        {"rate", [](const Item &) { Form->FeeEarnerGroup(2)->HourlyRate = QString(); }, {10, 11, 13},
            "Schedule item 2: the hourly rate of group B is not an amount"},
        {"large rate", [](const Item &) { Form->FeeEarnerGroup(2)->HourlyRate = QString(30, u'9'); }, {10, 11, 13},
            "Schedule item 2: the hourly rate of group B is larger than an amount can be"},
        {"time", [](const Item &item) { item->TTime = QString(); }, {6, 11, 13}, "Schedule item 2 has no time"},
        {"tick", [](const Item &item) { item->XMLNode().child("travel").text().set("perhaps"); }, {5, 10, 11, 13},
            "Schedule item 2: the tick Travel holds \"perhaps\", which is neither True nor False"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        SetUpClaim();
        row.spoil(Form->ScheduleOfTimeItem(2));
        draw();
        ASSERT_EQ(13, grid().Rows());
        EXPECT_EQ(QStringLiteral("60.00"), grid().Text(FirstItemRow, 13));
        expectFailed(FirstItemRow, {}, "");
        expectFailed(FirstItemRow + 2, row.columns, row.why);
        EXPECT_EQ(QStringLiteral("2"), grid().Text(FirstItemRow + 2, 1));
        EXPECT_EQ(QString::fromUtf8(row.why), toolTip(FirstItemRow + 2, 13));
        EXPECT_EQ(QStringLiteral("180.00"), grid().Text(FirstItemRow + 4, 13)) << "the item behind it";
        EXPECT_FALSE(sheet->grab().isNull());
        SetUpClaim();
        draw(); // after the correction the error is gone
        for (int line = 1; line <= grid().Rows(); ++line)
            expectFailed(line, {}, "");
    }
}

TEST_F(FailedFigures, OfTheTotalsAreThoseWithAPartThatFails)
{
    SetUpClaim(); // items of 1, 2 and 3 hours in the columns 5, 6 and 5
    Form->ScheduleOfTimeItem(2)->FeeEarnerUniqueID = QStringLiteral("ID99");
    draw();
    const char *gone = "Schedule item 2 names a fee earner that no longer exists";
    expectFailed(timesRow(), {}, "");
    EXPECT_EQ(QStringLiteral("04:00"), grid().Text(timesRow(), 5));
    EXPECT_EQ(QStringLiteral("02:00"), grid().Text(timesRow(), 6));
    expectFailed(moneyRow(), {6, 13}, gone);
    EXPECT_EQ(QStringLiteral("240.00"), grid().Text(moneyRow(), 5));
    EXPECT_EQ(QString::fromUtf8(gone), toolTip(moneyRow(), 13));

    Form->ScheduleOfTimeItem(3)->TTime = QStringLiteral("90");
    draw();
    expectFailed(timesRow(), {5}, "Schedule item 3 has the time \"90\", which is not one");
    expectFailed(moneyRow(), {5, 6, 13},
        "Schedule item 3 has the time \"90\", which is not one; "
        "Schedule item 2 names a fee earner that no longer exists");

    // An item's column affects all columns.
    Form->ScheduleOfTimeItem(1)->XMLNode().child("waiting").text().set("perhaps");
    draw();
    const char *tick = "Schedule item 1: the tick Waiting holds \"perhaps\", which is neither True nor False";
    expectFailed(timesRow(), {5, 6, 7, 8, 9}, tick);
    expectFailed(moneyRow(), {5, 6, 7, 8, 9, 13}, tick);
}

TEST_F(FailedFigures, OfSumsThatAreTooLarge)
{
    SetUpClaim();
    Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("900000000000000");
    Form->ScheduleOfTimeItem(3)->TTime = QStringLiteral("01:00");
    draw();
    expectFailed(FirstItemRow, {}, "");
    expectFailed(moneyRow(), {5, 13}, "The sum is too large");
}

TEST_F(FailedFigures, OfAClaimThatDoesNotSayWhatIsOnTheBill)
{
    SetUpClaim();
    Form->FormType = QStringLiteral("Claim1A");
    Form->XMLNode().child("excludenonadvocacy").text().set("perhaps");
    Form->ScheduleOfTimeItem(2)->Description = QStringLiteral("a note");
    draw();
    const char *why = "The claim: the tick Exclude Non Advocacy holds \"perhaps\", which is neither True nor False";
    ASSERT_EQ(13, grid().Rows());
    for (int n = 0; n < 3; ++n) {
        expectFailed(FirstItemRow + 2 * n, {1}, why);
        EXPECT_FALSE(grid().Text(FirstItemRow + 2 * n, 13).isEmpty());
    }
    expectFailed(timesRow(), {5, 6, 7, 8, 9}, why);
    expectFailed(moneyRow(), {5, 6, 7, 8, 9, 13}, why);
    mdDrawPreview(clsPreviewKind::AdditionalInformation);
    EXPECT_EQ(2, grid().Rows());

    Form->ExcludeNonAdvocacy = false;
    draw();
    expectFailed(FirstItemRow, {}, "");
    expectFailed(moneyRow(), {}, "");
}

TEST_F(FailedFigures, AreRedAndReadOut)
{
    SetUpClaim();
    Form->ScheduleOfTimeItem(1)->TTime = QString();
    draw();
    const QRect cell(grid().columnViewportPosition(12), grid().rowViewportPosition(FirstItemRow - 1),
        grid().ColumnWidth(13), grid().RowHeight(FirstItemRow));
    const QImage picture = grid().viewport()->grab(cell).toImage();
    bool red = false;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            red = red || (picture.pixelColor(x, y).red() > 150 && picture.pixelColor(x, y).green() < 60);
    EXPECT_TRUE(red);
    EXPECT_EQ(QStringLiteral("Schedule item 1 has no time"),
        grid().model()->index(FirstItemRow - 1, 12).data(Qt::AccessibleDescriptionRole).toString());
}

TEST_F(SchedulePreview, TheFocusStaysWhereItWas)
{
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    other.setFocus();
    ASSERT_EQ(&other, window.focusWidget());
    draw();
    EXPECT_EQ(&other, window.focusWidget());
}

TEST_F(SchedulePreview, TwoThousandItems)
{
    addItems(2000);
    draw();
    ASSERT_EQ(4007, grid().Rows());
    EXPECT_EQ(QStringLiteral("2000"), grid().Text(4003, 1));
    EXPECT_EQ(QStringLiteral("2000:00"), grid().Text(4005, 5));
    EXPECT_EQ(QStringLiteral("120,000.00"), grid().Text(4007, 13));
    std::vector<int> told;
    for (const auto &progress : user.progress)
        told.push_back(progress.value);
    EXPECT_EQ((std::vector {1, 600, 1200, 1800}), told); // fewer reports for a long list
}
