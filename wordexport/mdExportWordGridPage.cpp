#include "wordexport/mdExportWordGridPage.h"

#include "base/mdSetProgress.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportSheet.h"

namespace {

/// Sets the open sheet's number to that of the last sheet created. After a grid that did not overflow this is the first
/// sheet, which then gets the number of an earlier grid's last sheet. Required behaviour; do not fix. The templates
/// have a hidden placeholder for each mark but the first, and only the first shows.
void markOpenSheet(const clsExport &run, clsMSWord &word)
{
    if (run.ExportSheetCounter > 1)
        mdReplaceMark(word, mdSheetMark(run.ExportSheetCounter));
}

/// Returns its path.
QString beginFurtherSheet(clsExport &run, clsMSWord &word, const clsGrid &grid, int pageNumber)
{
    ++run.ExportSheetCounter;
    mdSaveSheet(run, word);
    const QString path
        = mdMakeSheet(run, QString::fromLatin1(grid.continuationTemplate), pageNumber, run.ExportSheetCounter);
    mdOpenSheet(run, word, path);
    word.MoveCursorDown(grid.furtherOffset);
    return path;
}

void typeRow(const clsExport &run, clsMSWord &word, const clsGrid &grid, int i)
{
    for (const clsPrintedCell &cell : grid.cells) {
        mdTypeCell(word, cell.source(run.form, i), cell.fill);
        if (&cell != &grid.cells.back())
            word.MoveCursorRight(1);
    }
    word.MoveSursorToNextLine();
}

} // namespace

void mdExportGrid(
    clsExport &run, clsMSWord &word, const clsGrid &grid, int firstOffset, const QString &firstSheet, int pageNumber)
{
    run.grid = &grid;
    run.list = &grid.list;
    run.firstItem = 1;
    QString sheet = firstSheet;
    const auto noteGrid = [&](int linesAbove) {
        run.sheets[sheet].grids.push_back({QString::fromLatin1(grid.list.name), linesAbove});
    };
    noteGrid(grid.firstOffset); // the offset in the template: the text typed above is in a cell of exact height
    word.PassTypedBreaks(run.sheets[firstSheet].breaks);
    word.MoveCursorDown(firstOffset);
    const int count = grid.count(run.form);
    bool onFirstSheet = true;
    int rowsWritten = 0;
    for (int i = 1; i <= count; ++i) {
        if ((onFirstSheet && rowsWritten == grid.firstCapacity) || rowsWritten == grid.furtherCapacity) {
            if (!onFirstSheet)
                markOpenSheet(run, word);
            onFirstSheet = false;
            sheet = beginFurtherSheet(run, word, grid, pageNumber);
            noteGrid(grid.furtherOffset);
            run.firstItem = i;
            rowsWritten = 0;
        }
        mdSetProgress(i, count, QStringLiteral("Exporting Page %1").arg(pageNumber));
        typeRow(run, word, grid, i);
        clsSheetFile &open = run.sheets[sheet];
        open.grids.back().Items.push_back(grid.list.order(run.form, i));
        open.breaks += mdLineBreaksIn(grid.cells.front().source(run.form, i));
        ++rowsWritten;
    }
    markOpenSheet(run, word);
    mdSaveSheet(run, word);
    run.grid = nullptr;
    run.list = nullptr;
    mdOpenSheet(run, word, firstSheet);
}

void mdReplaceFirstSheetMark(const clsExport &run, clsMSWord &word)
{
    mdReplaceMark(word, run.ExportSheetCounter < 2 ? QString() : mdSheetMark(1));
}

void mdExportWordGridPage(clsExport &run, const clsGridPage &page)
{
    // The first sheet is always named after the page with "(1)", regardless of the counter.
    const QString firstSheet = mdMakeSheet(run, QString::fromLatin1(page.pageTemplate), page.number, 1);
    clsMSWord word;
    mdOpenSheet(run, word, firstSheet);
    for (const clsGridPage::Grid &part : page.grids) {
        if (part.counter == clsGridPage::StartsAnew)
            run.ExportSheetCounter = 1;
        mdExportGrid(run, word, *part.grid, part.grid->firstOffset, firstSheet, page.number);
    }
    if (!page.markComesLast)
        mdReplaceFirstSheetMark(run, word);
    mdReplaceRows(run, word, page.rows, page.number);
    if (page.markComesLast)
        mdReplaceFirstSheetMark(run, word);
    mdRemoveSpareMarks(word);
    mdFinishSheet(run, word);
}
