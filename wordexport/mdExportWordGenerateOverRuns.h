#pragma once

#include <QString>

class clsMSWord;
struct clsExport;
struct clsOverRun;

/// Puts a long text on its page or, if its box can't hold it, a reference there and the whole text on continuation
/// sheets. The reference names only the first of the sheets; nothing of the text stays on the page.
void mdExportWordGenerateOverRuns(clsExport &run, const QString &text, const clsOverRun &overRun, clsMSWord &word,
    const QString &placeholder, int pageNumber);

/// Creates the panel membership sheet of a page: fixed text from its template; nothing on the page refers to it.
void mdExportWordPanelMembershipOverrun(clsExport &run, const QString &templateName, int pageNumber);
