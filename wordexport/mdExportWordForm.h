#pragma once

#include <span>

struct clsExport;

/// A page of a government form and its exporter.
struct clsExportPageRow {
    int number;
    const char *logName; ///< the name in the log lines of its beginning and end
    void (*exporter)(clsExport &run);
};

/// A government form for the driver.
struct clsExportForm {
    const char *logName;
    std::span<const clsExportPageRow> pages;
    int progressMaximum;
    int additionalInformationPage;
};

/// Runs an export: creates the sheets page by page in the temporary folder, then joins them to the finished document.
/// False, after a message, if none was produced.
bool mdExportWordForm(clsExport &run, const clsExportForm &form);
