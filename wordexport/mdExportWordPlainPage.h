#pragma once

struct clsExport;
struct clsPlainPage;

/// Exports a page with only text and tick boxes to fill in, the simplest type of page.
void mdExportWordPlainPage(clsExport &run, const clsPlainPage &page);
