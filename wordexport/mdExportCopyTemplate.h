#pragma once

#include <QString>

struct clsExport;

/// Copies a template to the temporary folder as a sheet's file and returns its full path, which the caller adds to the
/// sheets at once. A missing or invalid template, or an unwritable folder, is a run-time error: it ends the export
/// before anything has the finished document's name.
QString mdExportCopyTemplate(clsExport &run, const QString &templateName, const QString &sheetName);

/// The name of a sheet: the page's number and the sheet's in brackets, such as 3(2).
QString mdSheetName(int pageNumber, int sheetNumber);

/// The mark beside the page number of a sheet: the sheet's number in brackets.
QString mdSheetMark(int sheetNumber);
