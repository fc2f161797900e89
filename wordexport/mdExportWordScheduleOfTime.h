#pragma once

#include <QString>

struct clsExport;

/// Exports the schedule of time: each sheet is made from the page's own template and holds 33 rows; only the last sheet
/// has the totals. A schedule without items still gets one sheet.
void mdExportWordScheduleOfTime(clsExport &run, const QString &pageTemplate, int pageNumber);
