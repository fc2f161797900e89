#include "preview/mdExportPreview.h"

#include "base/clsRunTimeError.h"
#include "base/mdDateText.h"
#include "base/mdFormatMoney.h"
#include "base/mdNumberText.h"
#include "controls/mdTheme.h"
#include "preview/oPreviewGrid.h"

oPreviewGrid &mdExportPreviewGrid()
{
    if (!PreviewGrid)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *PreviewGrid;
}

void mdExportPreviewInit()
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    grid.setRedraw(false);
    grid.RemoveAll();
}

namespace {

int widthOf(const oPreviewGrid &grid, int percent)
{
    // The percentages of the columns add up to 100; three more parts leave room for the scroll bar.
    constexpr double Parts = 103;
    return LongFromDouble(grid.width() / Parts * percent);
}

} // namespace

void mdExportPreviewAddColumn(int percent)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    grid.AddColumn(QStringLiteral("Column %1").arg(grid.Columns()), widthOf(grid, percent), percent);
}

void mdExportPreviewFitColumns()
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    for (int column = 1; column <= grid.Columns(); ++column)
        if (const int share = grid.ColumnShare(column))
            grid.setColumnWidth(column, widthOf(grid, share));
    for (int row = 1; row <= grid.Rows(); ++row)
        grid.FitRowHeight(row);
}

void mdExportPreviewAddRow(bool spacer)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    if (spacer)
        grid.AddRow();
    grid.AddRow();
}

void mdExportPreviewSetOrigin(clsPreviewOrigin origin)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    grid.setOrigin(grid.Rows(), origin);
}

void mdExportPreviewSetText(
    int column, const QString &text, clsGridAlignment alignment, bool bold, bool underline, bool money)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    QString shown = money ? mdFormatMoney(text) : text;
    if (money && shown == QLatin1String("0.00"))
        shown.clear();
    if (shown == QLatin1String("00:00"))
        shown.clear();
    if (shown == NoDate)
        shown = QStringLiteral("-");
    grid.SetCell(grid.Rows(), column, shown, alignment, bold, underline);
}

void mdExportPreviewSetMoney(int column, Money amount, clsGridAlignment alignment)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    const QString text = mdFormatMoney(amount);
    grid.SetCell(grid.Rows(), column, text == QLatin1String("0.00") ? QString() : text, alignment);
}

void mdExportPreviewSetFailure(int column, const QString &whyNot, clsGridAlignment alignment)
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    grid.SetFailedCell(grid.Rows(), column, whyNot, alignment);
}

void mdExportPreviewDeInit()
{
    oPreviewGrid &grid = mdExportPreviewGrid();
    for (int column = 1; column <= grid.Columns(); column += 2)
        grid.setColumnBackColour(column, Theme::Stripe);
    for (int row = 1; row <= grid.Rows(); ++row)
        grid.FitRowHeight(row);
    grid.setRedraw(true);
}
