#pragma once

#include "base/Money.h"
#include "preview/clsPreviewCells.h"

#include <QString>

class oPreviewGrid;

// The drawing steps common to both previews. All draw to the grid `PreviewGrid`; without it they raise the object
// error.

/// The grid to draw to.
oPreviewGrid &mdExportPreviewGrid();

/// Switches painting off and removes all rows and columns.
void mdExportPreviewInit();
/// Appends a column with a share, in hundredths, of the grid's present width.
void mdExportPreviewAddColumn(int percent);
/// Sets the columns to their shares of the grid's present width, and the rows to the resulting heights.
void mdExportPreviewFitColumns();
/// Appends a row; `spacer` adds an empty row above it.
void mdExportPreviewAddRow(bool spacer);
/// Sets what the figures of the last row refer to.
void mdExportPreviewSetOrigin(clsPreviewOrigin origin);
/// Writes a cell of the last row. Money is shown with two decimals; zero is not shown at all.
void mdExportPreviewSetText(int column, const QString &text, clsGridAlignment alignment, bool bold = false,
    bool underline = false, bool money = false);
/// The same for a Money amount.
void mdExportPreviewSetMoney(int column, Money amount, clsGridAlignment alignment);
/// Writes "!" to a cell of the last row, for a figure that can't be computed, with the reason as its tooltip.
void mdExportPreviewSetFailure(int column, const QString &whyNot, clsGridAlignment alignment);
/// Sets the colours of the columns and the heights of the rows, and switches painting on.
void mdExportPreviewDeInit();
