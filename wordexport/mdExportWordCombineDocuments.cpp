#include "wordexport/mdExportWordCombineDocuments.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/clsWriteLock.h"
#include "base/mdEndSignals.h"
#include "base/mdLog.h"
#include "base/mdSetProgress.h"
#include "base/mdShortenedName.h"
#include "wordexport/clsExport.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/document/clsZipPackage.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdExportTempFolder.h"

#include <QFileInfo>

namespace {

QString numberInName(int number)
{
    return number > 1 ? QStringLiteral(" (%1)").arg(number) : QString();
}

} // namespace

QString mdFinishedDocumentPath(const QString &exportFolder, const QString &name)
{
    return QStringLiteral("%1/%2.doc").arg(exportFolder, name);
}

QString mdFinishedDocumentPath(const clsExport &run)
{
    return mdFinishedDocumentPath(run.exportFolder, run.documentName);
}

QString mdNameByFile(const QString &claimFile)
{
    // Bytes: file names are limited to 255, and form type, number, and extension or folder prefix are added.
    constexpr qsizetype LongestName = 230;
    return mdShortenedName(QFileInfo(claimFile).completeBaseName(), LongestName);
}

QString mdDocumentNameByFile(const QString &claimFile, const QString &formType, int number)
{
    return mdNameByFile(claimFile) + u' ' + formType + numberInName(number);
}

QString mdTempFolderNameByFile(const QString &claimFile, int number)
{
    return QStringLiteral("~ZR3Temp ") + mdNameByFile(claimFile) + numberInName(number);
}

void mdStopAtExistingDocument(clsExport &run)
{
    if (run.mayReplace || !FileSystem().FileExists(mdFinishedDocumentPath(run)))
        return;
    run.stoppedAtDocument = true;
    throw clsExportStopped();
}

namespace {

void putInPlace(clsExport &run, const QString &joined)
{
    mdStopAtExistingDocument(run);
    const QString finished = mdFinishedDocumentPath(run);
    try {
        mdPutDocumentInPlace(joined, finished, run.claimFile, ZipLimits::PackageBytes);
    } catch (const clsRunTimeError &error) {
        throw error.because(QStringLiteral("The document can't be written: ") + finished);
    }
}

/// The same in turn with other exports. Requests to end are held back until it is done, so that no lock file is left.
void putInPlaceInTurn(clsExport &run, const QString &joined)
{
    const clsEndSignalsHeld held;
    const clsWriteLock turn(mdFinishedDocumentPath(run));
    putInPlace(run, joined);
}

} // namespace

void mdExportWordCombineDocuments(clsExport &run)
{
    WriteLog(QStringLiteral("Begin Export Word Combine Documents"));
    const QString folder = mdExportTempFolder(run);
    const QString joined = folder + QStringLiteral("/Joined.doc");
    // The first sheet is always that of page 1; its name is not looked up. Required behaviour.
    const QString first = folder + QStringLiteral("/1(1).doc");
    mdWriteWorkingFile(joined, mdReadDocumentFile(first, ZipLimits::PackageBytes));
    run.sheets.insert(joined, {.templateName = run.sheets.value(first).templateName, .isCopy = false});

    clsMSWord word(clsMSWord::Finished);
    mdOpenSheet(run, word, joined);
    if (!word.isOpen())
        throw clsExportStopped();
    const int count = int(run.ExportFileCollection.size());
    for (int i = 2; i <= count; ++i) {
        mdSetProgress(i, count, QStringLiteral("Combining Documents"));
        mdInsertSheet(run, word, run.ExportFileCollection[i - 1]);
    }
    word.TypeBackSpace();
    mdSaveSheet(run, word);
    // A sheet that could not be joined has been reported and is skipped. But without a saved joined document, nothing
    // may be put in place.
    if (word.isOpen())
        throw clsExportStopped();
    word.Quit();
    if (run.sharesFolder)
        putInPlaceInTurn(run, joined);
    else
        putInPlace(run, joined);
    WriteLog(QStringLiteral("End Export Word Combine Documents"));
}
