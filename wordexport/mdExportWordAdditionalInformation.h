#pragma once

#include <QString>

struct clsAdditionalInformation;
struct clsExport;

/// The sheet on which the rest of the page continues after the additional information.
struct clsAdditionalInformationResult {
    QString firstSheet;
    int linesUsed; ///< the lines typed on it; each moved the following content down by one
    int breaks; ///< line breaks within these lines; each moved that content down by another line
};

/// Exports the notes of the items that have a description: a small number of lines on the page's first sheet, 50 on
/// each further one. A note is never split over sheets.
clsAdditionalInformationResult mdExportWordAdditionalInformation(clsExport &run, const clsAdditionalInformation &place);

/// Reports the first note that no sheet could hold, and returns true. Without this check such a note would create
/// sheets endlessly.
bool mdNoteCanNeverFit(const clsExport &run);
