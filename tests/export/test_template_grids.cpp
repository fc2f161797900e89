#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"
#include "wordexport/document/clsMSWord.h"

#include <QRegularExpression>

// The grids of the real templates: each cell typed by the export is in its place.

namespace {

/// A grid in a real template, filled with the operations that the export uses.
struct TemplateGrid {
    const char *name;
    int offset;
    int rows;
    int cells;
    int earlierOffset; ///< offset of a grid above it on the sheet, filled first; 0 for none
    int earlierRows;
    int notes; ///< lines of additional information typed first
};

const TemplateGrid TemplateGrids[] = {
    {"Claim1 P4", 9, 32, 4, 0, 0, 0},
    {"Claim1 P4 Counsels Fees Cont", 3, 38, 4, 0, 0, 0},
    {"Claim1 P5", 5, 33, 13, 0, 0, 0},
    {"Claim1 P6", 20, 11, 12, 0, 0, 0},
    {"Claim1 P6", 29, 11, 12, 0, 0, 9},
    {"Claim1 P6 Expert Dibs Cont", 4, 32, 12, 0, 0, 0},
    {"Claim1 P7", 6, 14, 5, 0, 0, 0},
    {"Claim1 P7", 25, 12, 4, 0, 0, 0},
    {"Claim1 P7", 25, 12, 4, 6, 14, 0},
    {"Claim1 P7 Expert Dibs Joint Instruction Cont", 5, 30, 5, 0, 0, 0},
    {"Claim1 P7 Other Dibs Cont", 3, 32, 4, 0, 0, 0},
    {"Claim1A P5", 9, 32, 4, 0, 0, 0},
    {"Claim1A P5 Counsels Fees Cont", 3, 38, 4, 0, 0, 0},
    {"Claim1A P6", 22, 11, 12, 0, 0, 0},
    {"Claim1A P6 Expert Dibs Cont", 5, 32, 12, 0, 0, 0},
    {"Claim1A P7", 8, 14, 5, 0, 0, 0},
    {"Claim1A P7", 27, 12, 4, 0, 0, 0},
    {"Claim1A P7", 27, 12, 4, 8, 14, 0},
    {"Claim1A P7 Expert Dibs Joint Instruction Cont", 5, 30, 5, 0, 0, 0},
    {"Claim1a P7 Other Dibs Cont", 3, 32, 4, 0, 0, 0},
    {"Claim1A P8", 7, 16, 14, 0, 0, 0},
    {"Claim1A P8", 27, 6, 2, 7, 16, 0},
    {"Claim1A P8", 35, 10, 3, 27, 6, 0},
    {"Claim1A P8 Advocacy Costs Cont", 5, 36, 14, 0, 0, 0},
    {"Claim1A P8 Bolt on Payments Cont", 5, 46, 2, 0, 0, 0},
    {"Claim1A P8 Exceptional travel bolt-on Cont", 4, 46, 3, 0, 0, 0},
    {"Claim1A P10", 5, 33, 13, 0, 0, 0},
};

class RealTemplate : public clsExportTest, public testing::WithParamInterface<TemplateGrid> {
protected:
    static QString cellText(int row, int cell) { return QStringLiteral("r%1c%2 ").arg(row).arg(cell); }
    static void fill(clsMSWord &word, int offset, int rows, int cells)
    {
        word.MoveCursorDown(offset);
        for (int row = 1; row <= rows; ++row) {
            for (int cell = 1; cell <= cells; ++cell) {
                word.SetText(cellText(row, cell), false, false, true, false);
                if (cell < cells)
                    word.MoveCursorRight(1);
            }
            word.MoveSursorToNextLine();
        }
    }
};

TEST_P(RealTemplate, EachCellLandsInItsPlace)
{
    const TemplateGrid &grid = GetParam();
    const QString sheet = path(QStringLiteral("sheet.doc"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("%1/%2.doc").arg(TestTemplates, QString::fromLatin1(grid.name)), sheet));
    clsMSWord word;
    if (grid.notes) {
        word.OpenDocument(sheet);
        word.MoveCursorDown(3);
        word.MoveCursorToStartOfRow();
        for (int i = 0; i < grid.notes; ++i)
            word.NextLine();
        word.SaveAndClose();
    }
    if (grid.earlierRows) {
        word.OpenDocument(sheet);
        word.MoveCursorDown(grid.earlierOffset);
        for (int i = 0; i < grid.earlierRows; ++i) {
            word.SetText(QStringLiteral("earlier"), false, false, true, false);
            word.MoveSursorToNextLine();
        }
        word.SaveAndClose();
    }
    word.OpenDocument(sheet);
    fill(word, grid.offset, grid.rows, grid.cells);
    word.SaveAndClose();
    word.Quit();
    EXPECT_TRUE(user.messages.empty());

    const clsDocumentTree document(sheet);
    const pugi::xpath_node found = document.body.select_node(".//w:tr[w:tc[1]//w:t[starts-with(., 'r1c1 ')]]");
    ASSERT_TRUE(found) << "the first row was not found in a table's first cell";
    pugi::xml_node row = found.node();
    // The row above has the column headings.
    const pugi::xml_node heads = row.previous_sibling("w:tr");
    ASSERT_TRUE(heads);
    EXPECT_FALSE(mdTextBelow(heads).isEmpty());
    EXPECT_FALSE(mdTextBelow(heads).contains(QLatin1String("earlier")));
    for (int number = 1; number <= grid.rows; ++number, row = row.next_sibling("w:tr")) {
        ASSERT_TRUE(row) << "row " << number << " is in no row of the table";
        int cell = 0;
        for (const pugi::xml_node &tc : row.children("w:tc"))
            EXPECT_EQ(cellText(number, ++cell), mdTextBelow(tc));
        EXPECT_EQ(grid.cells, cell);
    }
    // Nothing was typed outside the grid.
    EXPECT_FALSE(mdTextBelow(row).contains(QLatin1String("r1c")));
}

INSTANTIATE_TEST_SUITE_P(, RealTemplate, testing::ValuesIn(TemplateGrids), [](const auto &grid) {
    return QStringLiteral("%1_%2%3%4")
        .arg(QString::fromLatin1(grid.param.name).remove(QRegularExpression(QStringLiteral("[ -]"))))
        .arg(grid.param.offset)
        .arg(QLatin1String(grid.param.notes ? "_below_notes" : ""),
            QLatin1String(grid.param.earlierRows ? "_second" : ""))
        .toStdString();
});

} // namespace
