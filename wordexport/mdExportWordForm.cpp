#include "wordexport/mdExportWordForm.h"

#include "base/clsRunTimeError.h"
#include "base/mdLog.h"
#include "base/mdSetProgress.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdExportWordAdditionalInformation.h"
#include "wordexport/mdExportWordCombineDocuments.h"

namespace {

void exportPage(clsExport &run, const clsExportPageRow &page)
{
    const QString name = QString::fromLatin1(page.logName);
    WriteLog(QStringLiteral("Begin Export Word ") + name);
    if (!run.form.IncludePage(page.number))
        return;
    page.exporter(run);
    WriteLog(QStringLiteral("End Export Word ") + name);
}

/// The lock on the folder of the sheets. An error ends the export; the user chose the folder.
std::shared_ptr<clsFolderLock> folderOfSheets(const clsExport &run)
{
    try {
        return mdCreateExportTempFolder(mdExportTempFolder(run));
    } catch (const clsRunTimeError &error) {
        throw error.because(QStringLiteral("The sheets can't be written to the folder ") + run.exportFolder);
    }
}

void takeFolder(clsExport &run)
{
    run.folderLock = folderOfSheets(run);
    if (!run.folderLock)
        throw clsExportStopped();
    // Another export may have ended during the wait for the lock.
    mdStopAtExistingDocument(run);
}

void exportSheets(clsExport &run, const clsExportForm &form)
{
    if (!run.inMemory)
        takeFolder(run);
    for (const clsExportPageRow &page : form.pages) {
        // The progress advances whether or not the page is included.
        mdSetProgress(page.number, form.progressMaximum, QStringLiteral("Exporting Page %1").arg(page.number));
        exportPage(run, page);
    }
}

/// The document is in place: failing to delete the sheets doesn't make the export a failure, and the next one tries
/// again.
void sweep(const clsExport &run)
{
    try {
        mdClearExportTempFolder(mdExportTempFolder(run), true);
    } catch (const clsRunTimeError &) { }
}

} // namespace

bool mdExportWordForm(clsExport &run, const clsExportForm &form)
{
    const QString name = QString::fromLatin1(form.logName);
    WriteLog(QStringLiteral("Begin Export Word ") + name);
    run.form.RenderScheduleOfTimeItemsForExport();
    run.form.RenderAdditionalInformationItems();
    run.form.CheckDerivedCollections();
    if (run.form.IncludePage(form.additionalInformationPage) && mdNoteCanNeverFit(run))
        return false;
    run.ExportFileCollection.clear();
    run.ExportSheetCounter = 0;
    run.bill.forget();
    try {
        exportSheets(run, form);
        if (!run.inMemory)
            mdExportWordCombineDocuments(run);
    } catch (const clsExportStopped &) {
        mdClearProgress();
        return false;
    }
    if (!run.keepsSheets && !run.inMemory)
        sweep(run);
    mdClearProgress();
    WriteLog(QStringLiteral("End Export Word ") + name);
    return true;
}
