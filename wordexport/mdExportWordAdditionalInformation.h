#pragma once

#include <QString>

struct clsAdditionalInformation;
struct clsExport;

/// The sheet that the additional information leaves for the rest of its page.
struct clsAdditionalInformationResult {
    QString firstSheet;
    int linesUsed; ///< how many lines were typed there, each of which pushed what follows down by one
    int breaks; ///< within these lines, each of which pushed it down by one more
};

/// Exports the notes of the items that have a description: a small budget of lines on the page's own sheet, 50 on each
/// further one. A note is never split over sheets.
clsAdditionalInformationResult mdExportWordAdditionalInformation(clsExport &run, const clsAdditionalInformation &place);

/// Tells the user of the first note that no sheet could ever hold, and returns true. Without this such a note would
/// make sheets without end.
bool mdNoteCanNeverFit(const clsExport &run);
