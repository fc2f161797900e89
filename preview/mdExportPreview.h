#pragma once

#include "base/Money.h"
#include "preview/clsPreviewCells.h"

#include <QString>

class oPreviewGrid;

// What both previews are drawn with. Everything goes to the grid `PreviewGrid`; without one it is the object error.

/// The grid that is drawn to.
oPreviewGrid &mdExportPreviewGrid();

/// Switches painting off and removes all rows and columns.
void mdExportPreviewInit();
/// Appends a column that takes a share, in hundredths, of the grid's present width.
void mdExportPreviewAddColumn(int percent);
/// Gives the columns their shares of the width that the grid now has, and the rows the heights that follow from them.
void mdExportPreviewFitColumns();
/// Appends a row; a spacer is a further, empty row above it.
void mdExportPreviewAddRow(bool spacer);
/// Says of what the figures of the last row are.
void mdExportPreviewSetOrigin(clsPreviewOrigin origin);
/// Writes a cell of the last row. Money is printed with two decimals; what is zero is not shown at all.
void mdExportPreviewSetText(int column, const QString &text, clsGridAlignment alignment, bool bold = false,
    bool underline = false, bool money = false);
/// The same of an amount.
void mdExportPreviewSetMoney(int column, Money amount, clsGridAlignment alignment);
/// Writes "!" into a cell of the last row, for a figure that can't be computed, with the reason as its tooltip.
void mdExportPreviewSetFailure(int column, const QString &whyNot, clsGridAlignment alignment);
/// Stripes the columns, fits the heights of the rows, and switches painting on.
void mdExportPreviewDeInit();
