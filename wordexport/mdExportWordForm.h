#pragma once

#include <span>

struct clsExport;

/// A page of a government form and the exporter that prints it.
struct clsExportPageRow {
    int number;
    const char *logName; ///< the words under which its beginning and end are logged
    void (*exporter)(clsExport &run);
};

/// A government form as the driver sees it.
struct clsExportForm {
    const char *logName;
    std::span<const clsExportPageRow> pages;
    int progressMaximum;
    int additionalInformationPage;
};

/// Runs an export: sheets page by page in the temporary folder, then joined to the finished document.
/// False when the user was told why none came out.
bool mdExportWordForm(clsExport &run, const clsExportForm &form);
