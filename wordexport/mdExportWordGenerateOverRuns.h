#pragma once

#include <QString>

class clsMSWord;
struct clsExport;
struct clsOverRun;

/// Puts a long text on its page, or, when its box can't hold it, a reference there and the whole text on continuation
/// sheets. The reference names the first of the sheets only; nothing of the text stays on the page.
void mdExportWordGenerateOverRuns(clsExport &run, const QString &text, const clsOverRun &overRun, clsMSWord &word,
    const QString &placeholder, int pageNumber);

/// Makes the panel membership sheet of a page: fixed text from its template, to which nothing on the page refers.
void mdExportWordPanelMembershipOverrun(clsExport &run, const QString &templateName, int pageNumber);
