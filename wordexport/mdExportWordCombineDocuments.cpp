#include "wordexport/mdExportWordCombineDocuments.h"

#include "base/clsFileSystem.h"
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

QString mdFinishedDocumentPath(const QString &exportFolder, const QString &name)
{
    return QStringLiteral("%1/%2.doc").arg(exportFolder, name);
}

QString mdFinishedDocumentPath(const clsExport &run)
{
    return mdFinishedDocumentPath(run.exportFolder, run.documentName);
}

QString mdDocumentNameByFile(const QString &claimFile, const QString &formType)
{
    constexpr qsizetype LongestName = 230; // bytes: the form type and the ending come to it, and names end at 255
    const QString name = QFileInfo(claimFile).completeBaseName();
    return mdShortenedName(name, LongestName) + u' ' + formType;
}

void mdStopAtExistingDocument(clsExport &run)
{
    if (run.mayReplace || !FileSystem().FileExists(mdFinishedDocumentPath(run)))
        return;
    run.stoppedAtDocument = true;
    throw clsExportStopped();
}

void mdExportWordCombineDocuments(clsExport &run)
{
    WriteLog(QStringLiteral("Begin Export Word Combine Documents"));
    const QString folder = mdExportTempFolder(run.exportFolder);
    const QString joined = folder + QStringLiteral("/Joined.doc");
    // The first sheet is always page 1's, and its name is taken for granted.
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
    // A sheet that could not be joined has been told of, and is passed over. But while the joined document is not saved
    // there is nothing that may stand under the finished name.
    if (word.isOpen())
        throw clsExportStopped();
    word.Quit();
    mdStopAtExistingDocument(run);
    mdPutDocumentInPlace(joined, mdFinishedDocumentPath(run), run.claimFile, ZipLimits::PackageBytes);
    WriteLog(QStringLiteral("End Export Word Combine Documents"));
}
