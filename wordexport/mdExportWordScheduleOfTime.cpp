#include "wordexport/mdExportWordScheduleOfTime.h"

#include "base/mdDateText.h"
#include "base/mdSetProgress.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetColumnTotals.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdExportSources.h"

#include <algorithm>

namespace {

constexpr int RowsOnSheet = 33;
constexpr int LinesAboveGrid = 5;

using Item = clsZR3ScheduleOfTimeItem;
using Fill = clsFillClass;

const clsPlaceholderRow Totals[] = {
    {"{actm}", [](const clsBill &bill) { return ColumnTimeTotal(bill, 0); }, Fill::Text},
    {"{dtm}", [](const clsBill &bill) { return ColumnTimeTotal(bill, 1); }, Fill::Text},
    {"{htm}", [](const clsBill &bill) { return ColumnTimeTotal(bill, 2); }, Fill::Text},
    {"{ttm}", [](const clsBill &bill) { return ColumnTimeTotal(bill, 3); }, Fill::Text},
    {"{wtm}", [](const clsBill &bill) { return ColumnTimeTotal(bill, 4); }, Fill::Text},
    {"{actl}", [](const clsBill &bill) { return MoneyToText(ColumnClaimTotal(bill, 0)); }, Fill::Money},
    {"{dtl}", [](const clsBill &bill) { return MoneyToText(ColumnClaimTotal(bill, 1)); }, Fill::Money},
    {"{htl}", [](const clsBill &bill) { return MoneyToText(ColumnClaimTotal(bill, 2)); }, Fill::Money},
    {"{ttl}", [](const clsBill &bill) { return MoneyToText(ColumnClaimTotal(bill, 3)); }, Fill::Money},
    {"{wtl}", [](const clsBill &bill) { return MoneyToText(ColumnClaimTotal(bill, 4)); }, Fill::Money},
    {"{total}", [](const clsBill &bill) { return MoneyToText(ScheduleTotal(bill)); }, Fill::Money},
};

constexpr clsPrintedList Schedule = {"schedule", mdOrderIn<&clsZR3Form::ScheduleOfTimeItemsForExportCollection>};

/// Types a cell and moves to the cell `cellsOn` to the right.
void typeAndMove(clsMSWord &word, const QString &text, Fill fill, int cellsOn)
{
    mdTypeCell(word, text, fill);
    word.MoveCursorRight(cellsOn);
}

/// Raises the error that keeps an item from being printed, in the order of its cells.
void raiseErrorOf(const Item &item)
{
    item.TimeColumn();
    item.FeeEarnerInitials();
    item.Rate();
    item.BasicClaim();
    item.TotalEnhancementPercentage();
    item.Claim();
}

void typeRow(clsMSWord &word, const Item &item, const clsSchedulePrice &price)
{
    if (price.fails())
        raiseErrorOf(item);
    typeAndMove(word, QString::number(item.SOTItemNumber), Fill::Text, 1);
    typeAndMove(word, *price.FeeEarnerInitials, Fill::Text, 1);
    // Only in this column; elsewhere the no-date text prints unchanged. Required behaviour.
    typeAndMove(word, item.dDate() == NoDate ? QString() : item.dDate(), Fill::Text, 1);
    typeAndMove(word, item.Code(), Fill::Text, price.TimeColumn + 1);
    typeAndMove(word, item.TTime(), Fill::Text, Item::Columns - price.TimeColumn);
    typeAndMove(word, MoneyToText(price.Rate), Fill::Money, 1);
    typeAndMove(word, MoneyToText(price.BasicClaim), Fill::Money, 1);
    typeAndMove(word, MoneyToText(price.TotalEnhancementPercentage), Fill::Text, 1);
    mdTypeCell(word, MoneyToText(price.Claim), Fill::Money);
}

void replaceTotals(clsExport &run, clsMSWord &word, bool lastSheet, int pageNumber)
{
    if (lastSheet) {
        mdReplaceRows(run, word, Totals, pageNumber);
        return;
    }
    for (const clsPlaceholderRow &row : Totals)
        mdReplace(word, QString::fromLatin1(row.placeholder), QString(), Fill::Text);
}

QString markOf(const clsExport &run, int count)
{
    if (run.ExportSheetCounter == 1 && count <= RowsOnSheet)
        return {};
    return mdSheetMark(run.ExportSheetCounter);
}

/// One sheet with the rows from `start` to `last`.
void exportSheet(clsExport &run, const QString &pageTemplate, int pageNumber, int start, int last, int count)
{
    ++run.ExportSheetCounter;
    const QString path = mdMakeSheet(run, pageTemplate, pageNumber, run.ExportSheetCounter);
    clsMSWord word;
    mdOpenSheet(run, word, path);
    run.list = &Schedule;
    run.firstItem = start;
    run.sheets[path].grids.push_back({QString::fromLatin1(Schedule.name), LinesAboveGrid});
    word.MoveCursorDown(LinesAboveGrid);
    for (int row = start; row <= last; ++row) {
        mdSetProgress(row, count, QStringLiteral("Exporting Page %1").arg(pageNumber));
        const Item &item = *run.form.ScheduleOfTimeItemsForExportCollection()[size_t(row - 1)];
        run.sheets[path].grids.back().Items.push_back(item.OrderID());
        mdExplained(run.form, item, [&] { typeRow(word, item, run.bill.prices().of(item)); });
        if (row < last)
            word.MoveSursorToNextLine();
    }
    replaceTotals(run, word, last == count, pageNumber);
    mdReplaceMark(word, markOf(run, count));
    mdFinishSheet(run, word);
    run.list = nullptr;
}

} // namespace

void mdExportWordScheduleOfTime(clsExport &run, const QString &pageTemplate, int pageNumber)
{
    run.ExportSheetCounter = 0;
    const int count = int(run.form.ScheduleOfTimeItemsForExportCollection().size());
    int start = 1;
    do {
        exportSheet(run, pageTemplate, pageNumber, start, std::min(start + RowsOnSheet - 1, count), count);
        start += RowsOnSheet;
    } while (start <= count);
}
