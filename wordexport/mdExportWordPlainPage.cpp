#include "wordexport/mdExportWordPlainPage.h"

#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdExportWordGenerateOverRuns.h"

void mdExportWordPlainPage(clsExport &run, const clsPlainPage &page)
{
    run.ExportSheetCounter = 1;
    const QString path = mdMakeSheet(run, QString::fromLatin1(page.pageTemplate), page.number, 1);
    clsMSWord word;
    mdOpenSheet(run, word, path);
    for (const auto &rows : page.tables)
        mdReplaceRows(run, word, rows, page.number);
    if (page.panelTemplate && run.form.IncludePanelMembershipContSheet())
        mdExportWordPanelMembershipOverrun(run, QString::fromLatin1(page.panelTemplate), page.number);
    if (page.hasMark)
        mdReplaceMark(word, run.ExportSheetCounter != 1 ? mdSheetMark(1) : QString());
    mdFinishSheet(run, word);
}
