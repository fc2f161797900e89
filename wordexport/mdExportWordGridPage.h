#pragma once

#include <QString>

class clsMSWord;
struct clsExport;
struct clsGrid;
struct clsGridPage;

/// Exports a page with grids: rows typed into tables that continue on further sheets.
void mdExportWordGridPage(clsExport &run, const clsGridPage &page);

/// Fills one grid of a page, starting `firstOffset` lines below the start of the first sheet, which is open. Afterwards
/// the first sheet is open again, with the cursor at its start.
void mdExportGrid(
    clsExport &run, clsMSWord &word, const clsGrid &grid, int firstOffset, const QString &firstSheet, int pageNumber);

/// Replaces the mark of a grid page's first sheet.
void mdReplaceFirstSheetMark(const clsExport &run, clsMSWord &word);
