#include "wordexport/mdExportWordCombineDocuments.h"

#include "shell/mdLog.h"
#include "shell/mdSetProgress.h"
#include "shell/mdSystemErrorCode.h"
#include "wordexport/clsExport.h"
#include "wordexport/clsMSWord.h"
#include "wordexport/clsZipPackage.h"
#include "wordexport/mdDocumentFile.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdExportTempFolder.h"

#include <QFileInfo>

#include <filesystem>

namespace {

/// Gives the finished name to the joined document, in one step. A document that is there already is replaced as if it
/// were written over: one that is write-protected stays, which taking over its name would not ask; where the name is a
/// link, the document that it leads to is the one; and who may read it stays as it was.
void putInPlace(const QString &joined, const QString &finished)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const QFileInfo older(finished);
    if (older.exists()) {
        if (!older.isWritable())
            throw clsRunTimeError(clsRunTimeError::PermissionDenied);
        fs::permissions(joined.toStdString(), fs::status(finished.toStdString(), error).permissions(), error);
        mdCheckSystemError(error);
    }
    const QString target = older.exists() ? older.canonicalFilePath() : finished;
    fs::rename(joined.toStdString(), target.toStdString(), error);
    // A link may lead to another file system, where a name can't be taken over.
    if (error == std::errc::cross_device_link)
        mdWriteDocumentFile(target, mdReadDocumentFile(joined, ZipLimits::PackageBytes));
    else
        mdCheckSystemError(error);
}

} // namespace

QString mdFinishedDocumentPath(const QString &exportFolder, const QString &formType)
{
    return QStringLiteral("%1/%2.doc").arg(exportFolder, formType);
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
    putInPlace(joined, mdFinishedDocumentPath(run.exportFolder, run.form.FormType()));
    WriteLog(QStringLiteral("End Export Word Combine Documents"));
}
