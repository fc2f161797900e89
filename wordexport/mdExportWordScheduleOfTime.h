#pragma once

#include <QString>

struct clsExport;

/// Exports the schedule of time: each sheet is the page's own template and holds 33 rows; the totals stand on the last
/// sheet alone. A schedule without items still has one sheet.
void mdExportWordScheduleOfTime(clsExport &run, const QString &pageTemplate, int pageNumber);
