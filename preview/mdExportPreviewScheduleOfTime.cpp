#include "preview/mdExportPreviewScheduleOfTime.h"

#include "base/mdDateText.h"
#include "base/mdSetProgress.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetColumnTotals.h"
#include "formdata/clsSchedulePrices.h"
#include "formdata/clsZR3Form.h"
#include "preview/mdExportPreview.h"
#include "preview/oPreviewGrid.h"

namespace {

using Item = clsZR3ScheduleOfTimeItem;
using Price = clsSchedulePrice;
using Alignment = clsGridAlignment;

constexpr int FirstTimeColumn = 5;
constexpr int ClaimColumn = 13;

struct clsScheduleColumn {
    int share;
    const char *caption;
    QString (*cell)(const Item &item, const Price &price); ///< null for columns that show an amount
    Alignment alignment;
    int (*error)(const Item &item, const Price &price) = nullptr; ///< the number of the error in the cell's figure
    Money Price::*amount = nullptr;
};

QString dateOf(const Item &item)
{
    // "No date" is empty here, while elsewhere it is shown as a dash. Required behaviour.
    const QString date = item.dDate();
    return date == NoDate ? QString() : date;
}

QString percentageOf(const Price &price)
{
    const Money percentage = price.TotalEnhancementPercentage;
    return percentage == Money() ? QString() : MoneyToText(percentage);
}

/// If it is unclear whether an item is on the bill, it has no number.
int errorOfNumber(const Item &item, const Price &)
{
    return item.SOTItemNumber == 0 ? clsRunTimeError::TypeMismatch : 0;
}

template <Price::Figure Figure> int errorOf(const Item &, const Price &price)
{
    return price.errorOf(Figure);
}

template <int Column> QString timeIn(const Item &item, const Price &price)
{
    return price.TimeColumn == Column ? item.TTime() : QString();
}

/// If it is unclear which column a time belongs to, the error is shown in the first.
template <int Column> int errorOfTime(const Item &, const Price &price)
{
    if (const int error = price.errorOf(Price::ColumnFigure))
        return Column == Item::AttendanceAndConferences ? error : 0;
    return price.TimeColumn == Column ? price.errorOf(Price::TimeFigure) : 0;
}

// clang-format off
const clsScheduleColumn Columns[] = {
    { 4, "",           [](const Item &item, const Price &) { return QString::number(item.SOTItemNumber); }, Alignment::Right,
        errorOfNumber},
    { 9, "FE",         [](const Item &, const Price &price) { return *price.FeeEarnerInitials; },       Alignment::Centre,
        errorOf<Price::InitialsFigure>},
    {10, "Date",       [](const Item &item, const Price &) { return dateOf(item); },                   Alignment::Centre},
    { 6, "Code",       [](const Item &item, const Price &) { return item.Code(); },                    Alignment::Centre},
    { 7, "Att / Conf", timeIn<Item::AttendanceAndConferences>, Alignment::Centre, errorOfTime<Item::AttendanceAndConferences>},
    { 7, "Docs",       timeIn<Item::Documents>,                Alignment::Centre, errorOfTime<Item::Documents>},
    { 7, "Hrng",       timeIn<Item::Hearings>,                 Alignment::Centre, errorOfTime<Item::Hearings>},
    { 7, "Trvl",       timeIn<Item::TravelTime>,               Alignment::Centre, errorOfTime<Item::TravelTime>},
    { 7, "Wtng",       timeIn<Item::WaitingTime>,              Alignment::Centre, errorOfTime<Item::WaitingTime>},
    {10, "Rate",       nullptr, Alignment::Centre, errorOf<Price::RateFigure>, &Price::Rate},
    {10, "Bsc Clm",    nullptr, Alignment::Centre, errorOf<Price::BasicClaimFigure>, &Price::BasicClaim},
    { 6, "Enh",        [](const Item &, const Price &price) { return percentageOf(price); },           Alignment::Centre,
        errorOf<Price::PercentageFigure>},
    {10, "Clm",        nullptr, Alignment::Centre, errorOf<Price::ClaimFigure>, &Price::Claim},
};
// clang-format on

/// Draws the failed figures of an item, each with its reason.
void drawFailures(const Item &item, const Price &price, const clsZR3Form &form)
{
    clsFigureFaults faults;
    int number = 0;
    for (const clsScheduleColumn &column : Columns) {
        ++number;
        const int error = column.error ? column.error(item, price) : 0;
        if (!error)
            continue;
        if (faults.empty())
            faults = mdFigureFaults(form, item);
        mdExportPreviewSetFailure(number, mdSentenceFor(clsRunTimeError(error), faults), column.alignment);
    }
}

clsPreviewOrigin originOf(const Item &item)
{
    try {
        return {clsPreviewOrigin::ScheduleItem, item.OrderID()};
    } catch (const clsRunTimeError &) {
        return {}; // an unreadable order must not keep its row from being drawn
    }
}

void setLookOfLastRow(clsPreviewRowLook look)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    grid.setRowLook(grid.Rows(), look);
}

template <class Value, class Draw> void drawTotal(int column, const clsFigure<Value> &figure, Draw draw)
{
    if (figure.error)
        mdExportPreviewSetFailure(column, figure.error->cause(), Alignment::Centre);
    else
        draw(column, figure.value);
}

/// The items of a bill are scattered in memory: prefetches the next ones, step by step, while one is drawn.
void fetchAhead(const clsZR3Form &form, size_t place, const clsSchedulePrices &prices)
{
    constexpr size_t OfItem = 6;
    constexpr size_t OfElement = 4;
    constexpr size_t OfContent = 2;
    const auto &items = form.ScheduleOfTimeItemsForExportCollection();
    if (place + OfItem >= items.size())
        return;
    mdFetch(items[place + OfItem].get());
    items[place + OfElement]->dDate.fetchElement();
    items[place + OfContent]->dDate.fetchContent();
    prices.fetch(items[place + OfContent].get());
}

void drawTotals(const clsColumnTotals &totals)
{
    const auto drawTime
        = [](int column, const QString &time) { mdExportPreviewSetText(column, time, Alignment::Centre, true, false); };
    const auto drawMoney = [](int column, Money amount) { mdExportPreviewSetMoney(column, amount, Alignment::Centre); };
    mdExportPreviewAddRow(true);
    setLookOfLastRow(clsPreviewRowLook::Totals);
    for (int column = 0; column < Item::Columns; ++column)
        drawTotal(FirstTimeColumn + column, totals.times[size_t(column)], drawTime);
    mdExportPreviewAddRow(true);
    mdExportPreviewSetOrigin({clsPreviewOrigin::ScheduleTotal, 0});
    for (int column = 0; column < Item::Columns; ++column)
        drawTotal(FirstTimeColumn + column, totals.claims[size_t(column)], drawMoney);
    drawTotal(ClaimColumn, totals.schedule, drawMoney);
}

} // namespace

void mdExportPreviewScheduleOfTimeInit()
{
    mdExportPreviewInit();
    for (const clsScheduleColumn &column : Columns)
        mdExportPreviewAddColumn(column.share);

    // No column is wide enough for "Preparation": it is written across the border of the two columns below it.
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
    mdExportPreviewGrid().ExpectRows(count);
    int position = 0;
    for (const auto &item : items) {
        fetchAhead(form, size_t(position), prices);
        mdSetProgress(++position, count, QStringLiteral("Drawing"));
        mdExportPreviewScheduleOfTimeItemDraw(*item, prices);
    }
    drawTotals(AllColumnTotals(form, prices));
    mdClearProgress();
}

void mdExportPreviewScheduleOfTimeItemDraw(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrices &prices)
{
    const Price &price = prices.of(item);
    mdExportPreviewAddRow(true);
    mdExportPreviewSetOrigin(originOf(item));
    bool failed = false;
    int number = 0;
    for (const clsScheduleColumn &column : Columns) {
        ++number;
        if (column.error && column.error(item, price))
            failed = true;
        else if (column.amount)
            mdExportPreviewSetMoney(number, price.*column.amount, column.alignment);
        else if (const QString text = column.cell(item, price); !text.isEmpty())
            mdExportPreviewSetText(number, text, column.alignment);
    }
    if (failed)
        drawFailures(item, price, prices.form());
}

void mdExportPreviewScheduleOfTimeDeInit()
{
    mdExportPreviewDeInit();
}
