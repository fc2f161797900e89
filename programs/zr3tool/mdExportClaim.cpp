#include "programs/zr3tool/mdExportClaim.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsFileSystem.h"
#include "base/mdEndSignals.h"
#include "base/mdProgramFolder.h"
#include "base/mdSetProgress.h"
#include "programs/zr3tool/mdClaimSteps.h"
#include "wordexport/clsExport.h"
#include "wordexport/clsPdfConversion.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

using Status = clsExitStatus;

/// Reports that the document exists and may not be replaced.
Status documentExists(clsConsoleUserInterface &console, const QString &document)
{
    console.tell(QStringLiteral("Export"),
        QStringLiteral("The document %1 exists already. Give --force to replace it.")
            .arg(QDir::toNativeSeparators(document)));
    return Status::DocumentExists;
}

Status exportSheetsAndDocument(clsConsoleUserInterface &console, clsExport &run)
{
    if (const clsExportDriver driver = mdExportDriver(run.form.FormType())) {
        if (driver(run))
            return Status::Done;
        // Another program has created it since the check.
        return run.stoppedAtDocument ? documentExists(console, mdFinishedDocumentPath(run)) : Status::Failed;
    }
    console.tell(QStringLiteral("Export"), mdNoPagesMessage(run.form.FormType()));
    return Status::Failed;
}

/// Deletes what a failed export left in its folder. Silent: the failure itself has been reported.
void sweep(const clsExport &run)
{
    try {
        if (run.folderLock && !run.keepsSheets && FileSystem().FolderExists(mdExportTempFolder(run)))
            mdClearExportTempFolder(mdExportTempFolder(run), true);
    } catch (const std::exception &) { }
}

QString pdfBeside(const QString &document)
{
    return document.chopped(QStringLiteral(".doc").size()) + QStringLiteral(".pdf");
}

/// The files that an export would write.
QStringList filesOf(const clsToolCommand &command, const QString &document)
{
    QStringList files = {document};
    if (command.pdf)
        files << pdfBeside(document);
    return files;
}

/// The first existing file or folder that an export would overwrite without permission; empty if there is none.
QString whatMayNotBeReplaced(const clsToolCommand &command, const QString &document)
{
    const QStringList files = filesOf(command, document);
    for (const QString &file : files)
        if (!command.force && (FileSystem().FileExists(file) || FileSystem().FolderExists(file)))
            return file;
    return {};
}

/// Whether all the files of an export exist and are newer than the claim.
bool isNewerThanClaim(const clsToolCommand &command, const QString &document, const QString &claim)
{
    const QDateTime changed = QFileInfo(claim).lastModified();
    const QStringList files = filesOf(command, document);
    return std::all_of(files.begin(), files.end(), [&](const QString &path) {
        const QFileInfo file(path);
        return file.isFile() && file.lastModified() > changed;
    });
}

Status makePdf(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &document)
{
    const QString pdfPath = pdfBeside(document);
    QEventLoop waiting;
    std::optional<clsPdfConversion> conversion;
    mdSetProgress(1, 1, QStringLiteral("Making the PDF"));
    // If this program is asked to end, the office program and its copy of the document must not stay behind. Set up
    // before either exists; the handler runs in the loop below.
    const clsEndSignalScope endSignals([&] {
        conversion->cancel();
        waiting.quit();
    });
    conversion.emplace(document, [&waiting] { waiting.quit(); });
    if (conversion->state() == clsPdfConversion::Running)
        waiting.exec();
    mdClearProgress();
    if (conversion->state() == clsPdfConversion::Cancelled)
        return Status::Failed;
    // Another program has created it since the check.
    if (!command.force && FileSystem().FileExists(pdfPath))
        return documentExists(console, pdfPath);
    const QString pdfFailure = mdPutPdfInPlace(*conversion, document, pdfPath);
    if (pdfFailure.isEmpty())
        return Status::Done;
    console.tell(QStringLiteral("PDF"), pdfFailure);
    return Status::Failed;
}

Status makeDocument(clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command,
    const clsExportPlace &place, const QString &name)
{
    clsExport run {
        .form = form, .templatesFolder = command.templates.isEmpty() ? TemplatesFolder() : command.templates};
    run.exportFolder = QDir(command.target).absolutePath();
    run.documentName = name;
    run.claimFile = place.claim;
    run.mayReplace = command.force;
    run.stopsAtLostSheet = true;
    run.keepsSheets = command.keepSheets;
    run.sharesFolder = place.sharesFolder;
    if (place.sharesFolder)
        run.tempFolderName = mdTempFolderNameByFile(place.claim, place.number);
    const Status status = mdGuarded(console, Status::Failed, [&] { return exportSheetsAndDocument(console, run); });
    if (status != Status::Done)
        sweep(run);
    return status;
}

} // namespace

clsExportOutcome mdExportClaim(
    clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command, const clsExportPlace &place)
{
    if (!FileSystem().FolderExists(command.target)) {
        console.tell(QStringLiteral("Export Path"),
            QStringLiteral("The selected Export Path does not exist. Please select a valid folder and try again."));
        return {Status::Failed, {}};
    }
    const QString name
        = place.isNamedByFile ? mdDocumentNameByFile(place.claim, form.FormType(), place.number) : form.FormType();
    const QString document = mdFinishedDocumentPath(QDir(command.target).absolutePath(), name);
    if (command.newer && isNewerThanClaim(command, document, place.claim))
        return {Status::Done, document, true};
    if (const QString there = whatMayNotBeReplaced(command, document); !there.isEmpty())
        return {documentExists(console, there), document};
    clsExportOutcome outcome {makeDocument(console, form, command, place, name), document};
    if (outcome.status == Status::Done && command.pdf) {
        outcome.status = makePdf(console, command, document);
        if (outcome.status == Status::Done)
            outcome.pdf = pdfBeside(document);
    }
    return outcome;
}
