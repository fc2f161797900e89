#include "preview/mdExportPreviewScheduleOfTime.h"

#include "costing/clsSchedulePrices.h"
#include "costing/mdDateText.h"
#include "costing/mdGetColumnTotals.h"
#include "formdata/clsXMLReading.h"
#include "formdata/clsZR3Form.h"
#include "preview/mdExportPreview.h"
#include "preview/oPreviewGrid.h"
#include "shell/mdSetProgress.h"

namespace {

using Item = clsZR3ScheduleOfTimeItem;
using Price = clsSchedulePrice;
using Alignment = clsGridAlignment;

constexpr int FirstTimeColumn = 5;
constexpr int ClaimColumn = 13;

struct clsScheduleColumn {
    int share;
    const char *caption;
    QString (*cell)(const Item &item, const Price &price);
    Alignment alignment;
    bool money = false;
};

QString dateOf(const Item &item)
{
    // No date is not shown at all here, not even as the dash that it is elsewhere.
    const QString date = item.dDate();
    return date == NoDate ? QString() : date;
}

QString percentageOf(const Price &price)
{
    const QString percentage = MoneyToText(price.TotalEnhancementPercentage);
    return percentage == QLatin1String("0") ? QString() : percentage;
}

template <int Column> QString timeIn(const Item &, const Price &price)
{
    return price.TimeColumn == Column ? price.TTime : QString();
}

// clang-format off
const clsScheduleColumn Columns[] = {
    { 4, "",           [](const Item &item, const Price &) { return QString::number(item.SOTItemNumber); }, Alignment::Right},
    { 9, "FE",         [](const Item &, const Price &price) { return price.FeeEarnerInitials; },       Alignment::Centre},
    {10, "Date",       [](const Item &item, const Price &) { return dateOf(item); },                   Alignment::Centre},
    { 6, "Code",       [](const Item &item, const Price &) { return item.Code(); },                    Alignment::Centre},
    { 7, "Att / Conf", timeIn<Item::AttendanceAndConferences>,                                         Alignment::Centre},
    { 7, "Docs",       timeIn<Item::Documents>,                                                        Alignment::Centre},
    { 7, "Hrng",       timeIn<Item::Hearings>,                                                         Alignment::Centre},
    { 7, "Trvl",       timeIn<Item::TravelTime>,                                                       Alignment::Centre},
    { 7, "Wtng",       timeIn<Item::WaitingTime>,                                                      Alignment::Centre},
    {10, "Rate",       [](const Item &, const Price &price) { return MoneyToText(price.Rate); },       Alignment::Centre, true},
    {10, "Bsc Clm",    [](const Item &, const Price &price) { return MoneyToText(price.BasicClaim); }, Alignment::Centre, true},
    { 6, "Enh",        [](const Item &, const Price &price) { return percentageOf(price); },           Alignment::Centre},
    {10, "Clm",        [](const Item &, const Price &price) { return MoneyToText(price.Claim); },      Alignment::Centre, true},
};
// clang-format on

void setLookOfLastRow(clsPreviewRowLook look)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    grid.setRowLook(grid.Rows(), look);
}

void drawTotals(const clsColumnTotals &totals)
{
    mdExportPreviewAddRow(true);
    setLookOfLastRow(clsPreviewRowLook::Totals);
    for (int column = 0; column < Item::Columns; ++column)
        mdExportPreviewSetText(FirstTimeColumn + column, totals.times[size_t(column)], Alignment::Centre, true, false);
    mdExportPreviewAddRow(true);
    for (int column = 0; column < Item::Columns; ++column)
        mdExportPreviewSetText(FirstTimeColumn + column, MoneyToText(totals.claims[size_t(column)]), Alignment::Centre,
            false, false, true);
    mdExportPreviewSetText(ClaimColumn, MoneyToText(totals.schedule), Alignment::Centre, false, false, true);
}

} // namespace

void mdExportPreviewScheduleOfTimeInit()
{
    mdExportPreviewInit();
    for (const clsScheduleColumn &column : Columns)
        mdExportPreviewAddColumn(column.share);

    // No column is wide enough for "Preparation": it is written across the line between the two that it stands over.
    mdExportPreviewAddRow(false);
    setLookOfLastRow(clsPreviewRowLook::Joined);
    mdExportPreviewSetText(FirstTimeColumn, QStringLiteral("Prepa"), Alignment::Right, true);
    mdExportPreviewSetText(FirstTimeColumn + 1, QStringLiteral("ration"), Alignment::LeftWrapped, true);

    mdExportPreviewAddRow(true);
    setLookOfLastRow(clsPreviewRowLook::Captions);
    int number = 0;
    for (const clsScheduleColumn &column : Columns)
        if (++number; *column.caption)
            mdExportPreviewSetText(number, QLatin1String(column.caption), Alignment::CentreWrapped, true);
}

void mdExportPreviewScheduleOfTimeDraw(const clsZR3Form &form)
{
    clsSchedulePrices prices(form);
    const auto &items = form.ScheduleOfTimeItemsForExportCollection();
    const int count = int(items.size());
    int position = 0;
    for (const auto &item : items) {
        mdSetProgress(++position, count, QStringLiteral("Drawing"));
        mdExportPreviewScheduleOfTimeItemDraw(*item, prices);
    }
    drawTotals(AllColumnTotals(form, prices));
    mdClearProgress();
}

void mdExportPreviewScheduleOfTimeItemDraw(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrices &prices)
{
    const clsXMLReading reading(item);
    const Price &price = prices.of(item);
    mdExportPreviewAddRow(true);
    int number = 0;
    for (const clsScheduleColumn &column : Columns) {
        ++number;
        if (const QString text = column.cell(item, price); !text.isEmpty())
            mdExportPreviewSetText(number, text, column.alignment, false, false, column.money);
    }
}

void mdExportPreviewScheduleOfTimeDeInit()
{
    mdExportPreviewDeInit();
}
