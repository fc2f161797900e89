// The functions that both previews are drawn with.

#include "tests/preview/clsPreviewTest.h"

namespace {

using Alignment = clsGridAlignment;

class PreviewKit : public clsPreviewTest {
protected:
    /// The text that a cell shows.
    static QString shown(const char *text, bool money)
    {
        mdExportPreviewInit();
        mdExportPreviewAddColumn(50);
        mdExportPreviewAddRow(false);
        mdExportPreviewSetText(1, QString::fromLatin1(text), Alignment::Left, false, false, money);
        mdExportPreviewDeInit();
        return grid().Text(1, 1);
    }
};

} // namespace

TEST_F(PreviewKit, WhatIsZeroIsNotShown)
{
    EXPECT_EQ(QString(), shown("0", true));
    EXPECT_EQ(QString(), shown("0.004", true));
    EXPECT_EQ(QString(), shown("", true));
    EXPECT_EQ(QString(), shown("00:00", false));
    EXPECT_EQ(QStringLiteral("0.01"), shown("0.005", true));
    EXPECT_EQ(QStringLiteral("-0.01"), shown("-0.005", true));
    EXPECT_EQ(QString(), shown("-0.004", true));
    EXPECT_EQ(QStringLiteral("0"), shown("0", false));
    EXPECT_EQ(QStringLiteral("0.00"), shown("0.00", false)); // a text is not formatted as money
    EXPECT_EQ(QStringLiteral("00:01"), shown("00:01", false));
}

TEST_F(PreviewKit, MoneyHasTwoDecimalsAndCommas)
{
    EXPECT_EQ(QStringLiteral("1,234.50"), shown("1234.5", true));
    EXPECT_EQ(QStringLiteral("-1,234.50"), shown("-1234.5", true));
    EXPECT_EQ(QStringLiteral("922,337,203,685,477.58"), shown("922337203685477.5807", true));
    EXPECT_EQ(QStringLiteral("1234.5"), shown("1234.5", false));
    EXPECT_EQ(clsRunTimeError::TypeMismatch, errorOf([] { shown("abc", true); }));
}

TEST_F(PreviewKit, TheDateThatStandsForNoneIsADash)
{
    EXPECT_EQ(QStringLiteral("-"), shown("31/12/29", false));
    EXPECT_EQ(QStringLiteral("30/12/29"), shown("30/12/29", false));
    EXPECT_EQ(QStringLiteral("31/12/2029"), shown("31/12/2029", false));
}

TEST_F(PreviewKit, ATextIsWrittenToTheLastRowInItsFont)
{
    mdExportPreviewInit();
    mdExportPreviewAddColumn(50);
    mdExportPreviewAddColumn(50);
    mdExportPreviewAddRow(false);
    mdExportPreviewAddRow(true);
    mdExportPreviewSetText(2, QStringLiteral("x"), Alignment::Right, true, true);
    mdExportPreviewSetText(1, QStringLiteral("y"), Alignment::CentreWrapped);
    mdExportPreviewDeInit();

    ASSERT_EQ(3, grid().Rows());
    EXPECT_EQ((QStringList {QString(), QString()}), rowTexts(1));
    EXPECT_EQ((QStringList {QString(), QString()}), rowTexts(2));
    EXPECT_EQ((QStringList {QStringLiteral("y"), QStringLiteral("x")}), rowTexts(3));
    EXPECT_EQ(Alignment::Right, grid().Cell(3, 2).alignment);
    EXPECT_TRUE(grid().Cell(3, 2).bold);
    EXPECT_TRUE(grid().Cell(3, 2).underline);
    EXPECT_EQ(Alignment::CentreWrapped, grid().Cell(3, 1).alignment);
    EXPECT_FALSE(grid().Cell(3, 1).bold);
    EXPECT_FALSE(grid().Cell(3, 1).underline);
    EXPECT_TRUE(grid().CellFont(true, false).bold());
    EXPECT_TRUE(grid().CellFont(false, true).underline());
    EXPECT_FALSE(grid().CellFont(false, false).bold());
}

TEST_F(PreviewKit, AlignmentsHaveTheirCodes)
{
    EXPECT_EQ(0, int(Alignment::Left));
    EXPECT_EQ(1, int(Alignment::Centre));
    EXPECT_EQ(2, int(Alignment::Right));
    EXPECT_EQ(16, int(Alignment::LeftWrapped));
    EXPECT_EQ(17, int(Alignment::CentreWrapped));
}

TEST_F(PreviewKit, AColumnTakesItsShareOfAHundredAndThree)
{
    struct Row {
        int gridWidth;
        int percent;
        int width;
    };
    // 1030 / 103 * 7 = 70; 1116 / 103 * 7 = 75.8; 1116 / 103 * 10 = 108.3; 206 / 103 * 100 = 200.
    for (const Row &row : {Row {1030, 7, 70}, {1116, 7, 76}, {1116, 10, 108}, {206, 100, 200}, {500, 9, 44}}) {
        grid().resize(row.gridWidth, 300);
        mdExportPreviewInit();
        mdExportPreviewAddColumn(1);
        mdExportPreviewAddColumn(row.percent);
        mdExportPreviewDeInit();
        EXPECT_EQ(row.width, grid().ColumnWidth(2)) << row.gridWidth << " " << row.percent;
        EXPECT_EQ(QStringLiteral("Column 0"), grid().ColumnKey(1));
        EXPECT_EQ(QStringLiteral("Column 1"), grid().ColumnKey(2));
    }
}

TEST_F(PreviewKit, AChangedWidthTakesEffectAtTheNextRedraw)
{
    mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    const int before = grid().ColumnWidth(13);
    window.resize(900, 600);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheet->width() == 900; }));
    EXPECT_EQ(before, grid().ColumnWidth(13));
    EXPECT_EQ(before, grid().columnWidth(12));
    mdDrawPreview(clsPreviewKind::ScheduleOfTime);
    EXPECT_LT(grid().ColumnWidth(13), before);
    EXPECT_EQ(grid().ColumnWidth(13), grid().columnWidth(12));
}

TEST_F(PreviewKit, EverySecondColumnIsStriped)
{
    addItems(3);
    for (const auto kind : {clsPreviewKind::ScheduleOfTime, clsPreviewKind::AdditionalInformation}) {
        Form->ScheduleOfTimeItem(1)->Description = QStringLiteral("note");
        makeLists();
        mdDrawPreview(kind);
        for (int row = 1; row <= grid().Rows(); ++row)
            for (int column = 1; column <= grid().Columns(); ++column)
                EXPECT_EQ(column % 2 == 1 ? QColor(250, 250, 250) : QColor(255, 255, 255),
                    grid().CellBackColour(row, column));
    }
    EXPECT_EQ(QColor(250, 250, 250), grid().CellBackColour(1, 1));
    const QImage picture = grid().viewport()->grab().toImage();
    EXPECT_EQ(QColor(250, 250, 250), picture.pixelColor(3, 3));
    EXPECT_EQ(QColor(255, 255, 255), picture.pixelColor(grid().ColumnWidth(1) + 3, 3));
}

TEST_F(PreviewKit, WithoutAGridThereIsNothingToDrawTo)
{
    PreviewGrid = nullptr;
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([] { mdExportPreviewInit(); }));
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([] { mdDrawPreview(clsPreviewKind::ScheduleOfTime); }));
}
