#include "wordexport/mdExportWordGenerateOverRuns.h"

#include "base/mdLog.h"
#include "base/mdSetProgress.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdSplitLineIntoCollection.h"
#include "wordexport/mdTextRequiresOverRun.h"

namespace {

void makeContinuationSheet(
    clsExport &run, const QString &templateName, int pageNumber, const QString &placeholder, const QString &piece)
{
    const QString path = mdMakeSheet(run, templateName, pageNumber, run.ExportSheetCounter);
    clsMSWord word;
    mdOpenSheet(run, word, path);
    if (!placeholder.isEmpty())
        mdReplace(word, placeholder, piece, clsFillClass::Text);
    mdReplaceMark(word, mdSheetMark(run.ExportSheetCounter));
    mdFinishSheet(run, word);
}

} // namespace

void mdExportWordGenerateOverRuns(clsExport &run, const QString &text, const clsOverRun &overRun, clsMSWord &word,
    const QString &placeholder, int pageNumber)
{
    if (!mdTextRequiresOverRun(text, overRun.limit)) {
        mdReplace(word, placeholder, text, clsFillClass::Text);
        return;
    }
    mdReplace(word, placeholder,
        QStringLiteral("See Page %1 %2").arg(pageNumber).arg(mdSheetMark(run.ExportSheetCounter + 1)),
        clsFillClass::Text);

    const QStringList pieces = mdCutIntoPieces(text, overRun.cutLength);
    for (int i = 1; i <= int(pieces.size()); ++i) {
        ++run.ExportSheetCounter;
        mdSetProgress(i, int(pieces.size()),
            QStringLiteral("Exporting Page %1 Continuation Sheet %2").arg(pageNumber).arg(run.ExportSheetCounter));
        makeContinuationSheet(
            run, QString::fromLatin1(overRun.continuationTemplate), pageNumber, placeholder, pieces[i - 1]);
    }
}

void mdExportWordPanelMembershipOverrun(clsExport &run, const QString &templateName, int pageNumber)
{
    WriteLog(QStringLiteral("Begin Export Word Panel Membership Overrun"));
    ++run.ExportSheetCounter;
    makeContinuationSheet(run, templateName, pageNumber, QString(), QString());
    // The page's own end line, which is therefore logged twice. Required behaviour; do not fix.
    WriteLog(QStringLiteral("End Export Word Claim1 Page %1").arg(pageNumber));
}
