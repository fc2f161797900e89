#pragma once

struct clsExport;
struct clsPlainPage;

/// Exports a page on which text and boxes are filled in: the model of all pages.
void mdExportWordPlainPage(clsExport &run, const clsPlainPage &page);
