#include "base/clsConsoleUserInterface.h"
#include "base/clsFileSystem.h"
#include "base/clsProgramEnd.h"
#include "base/clsRunTimeError.h"
#include "base/mdCommandLine.h"
#include "base/mdEndSignals.h"
#include "base/mdGetVersionInfo.h"
#include "base/mdPrint.h"
#include "base/mdProgramFolder.h"
#include "base/mdSetProgress.h"
#include "costing/mdCheckForBlankItems.h"
#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/clsToolCommand.h"
#include "programs/zr3tool/mdCheckFull.h"
#include "programs/zr3tool/mdDiff.h"
#include "wordexport/clsExport.h"
#include "wordexport/clsPdfConversion.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdExportWordCombineDocuments.h"
#include "wordexport/mdForecast.h"
#include "wordexport/mdForecastReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <functional>
#include <new>
#include <optional>

namespace {

using Status = clsExitStatus;

const QString LineEnd = QStringLiteral("\r\n");

/// Runs a step; a run-time error in it is told, and the status says what it stands for.
Status guarded(clsConsoleUserInterface &console, Status onError, const std::function<Status()> &step)
{
    try {
        return step();
    } catch (const clsRunTimeError &error) {
        const QString cause = error.cause().isEmpty() ? QString() : LineEnd + error.cause();
        console.tell(QStringLiteral("Run-time error '%1'").arg(error.number()), error.description() + cause);
    } catch (const clsProgramEnd &) {
        // The user has been told why.
    } catch (const std::bad_alloc &) {
        console.tell(QStringLiteral("Run-time error '7'"), clsRunTimeError::standardDescription(7));
    } catch (const std::exception &error) {
        console.tell(QStringLiteral("Run-time error"), QString::fromUtf8(error.what()));
    }
    return onError;
}

/// Whether a claim has to be sound in all its parts to be of use.
enum class Soundness { InAllParts, InSome };

Status load(clsConsoleUserInterface &console, clsZR3Form &form, const QString &path,
    Soundness soundness = Soundness::InAllParts)
{
    // That a file which can't be read is no claim either goes without saying.
    console.showsOnlyFirstMessage = true;
    const Status status = guarded(console, Status::NoClaim, [&] {
        if (!form.LoadXML(path))
            return Status::NoClaim;
        // Nobody can mend the claim here.
        if (soundness == Soundness::InAllParts)
            form.CheckDerivedCollections();
        return Status::Done;
    });
    console.showsOnlyFirstMessage = false;
    return status;
}

Status totals(clsConsoleUserInterface &console, const clsZR3Form &form)
{
    const clsTotalsReport report = mdTotalsReport(form);
    mdPrintBytes(report.json);
    if (!report.hasFailures)
        return Status::Done;
    console.tell(QStringLiteral("Totals"),
        QStringLiteral(
            "Some figures of this claim can't be computed. Each of them stands as \"!\" and the number of its "
            "run-time error.")
            + (report.causes.isEmpty() ? QString() : LineEnd + report.causes.join(LineEnd)));
    return Status::Failed;
}

Status check(const clsZR3Form &form)
{
    const QString message = mdBlankItemsMessage(form);
    const bool blank = mdCountBlankScheduleItems(form) > 0 || mdCountBlankDisbursements(form) > 0;
    mdPrint(stdout, message.endsWith(LineEnd) ? message : message + LineEnd);
    return blank ? Status::BlankItems : Status::Done;
}

Status save(const clsConsoleUserInterface &console, clsZR3Form &form, const QString &newFile)
{
    const int failuresBefore = console.failureCount();
    // Not read back from the claim, which keeps its texts in the code page: a file's name may have other characters.
    const QString path = QFileInfo(newFile).absoluteFilePath();
    form.path = path;
    form.Version = GetVersionInfo();
    form.SaveXML(path);
    return console.failureCount() > failuresBefore ? Status::Failed : Status::Done;
}

/// What the user is told of a document that is there and may not be replaced.
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
        // Made by another program since this one has looked.
        return run.stoppedAtDocument ? documentExists(console, mdFinishedDocumentPath(run)) : Status::Failed;
    }
    console.tell(QStringLiteral("Export"), mdNoPagesMessage(run.form.FormType()));
    return Status::Failed;
}

Status forecast(const clsZR3Form &form, const clsToolCommand &command)
{
    const clsForecast forecast = mdForecast(form, TemplatesFolder());
    mdTellAsTheExport(forecast);
    if (forecast.Fails)
        return Status::Failed;
    if (command.json)
        mdPrintBytes(mdForecastAsJson(forecast));
    else
        mdPrint(stdout, mdForecastAsTable(forecast));
    return Status::Done;
}

/// Sweeps away what a failed export left in its folder. The failure itself has been told, so that this is silent.
void sweep(const clsExport &run)
{
    try {
        if (run.folderLock && !run.keepsSheets && FileSystem().FolderExists(mdExportTempFolder(run.exportFolder)))
            mdClearExportTempFolder(run.exportFolder, true);
    } catch (const std::exception &) { }
}

QString pdfBeside(const QString &document)
{
    return document.chopped(QStringLiteral(".doc").size()) + QStringLiteral(".pdf");
}

/// What lies where an export would put its files, unless it may replace that; empty where nothing does.
QString whatMayNotBeReplaced(const clsToolCommand &command, const QString &document)
{
    QStringList files = {document};
    if (command.pdf)
        files << pdfBeside(document);
    for (const QString &file : files)
        if (!command.force && (FileSystem().FileExists(file) || FileSystem().FolderExists(file)))
            return file;
    return {};
}

Status makePdf(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &document)
{
    const QString pdfPath = pdfBeside(document);
    QEventLoop waiting;
    clsPdfConversion conversion(document, [&waiting] { waiting.quit(); });
    mdSetProgress(1, 1, QStringLiteral("Making the PDF"));
    // Where this program is told to end, the office program and its copy of the document must not stay behind.
    const clsEndSignalScope endSignals([&] {
        conversion.cancel();
        waiting.quit();
    });
    if (conversion.state() == clsPdfConversion::Running)
        waiting.exec();
    mdClearProgress();
    if (conversion.state() == clsPdfConversion::Cancelled)
        return Status::Failed;
    // Made by another program since this one has looked.
    if (!command.force && FileSystem().FileExists(pdfPath))
        return documentExists(console, pdfPath);
    const QString pdfFailure = mdPutPdfInPlace(conversion, document, pdfPath);
    if (pdfFailure.isEmpty())
        return Status::Done;
    console.tell(QStringLiteral("PDF"), pdfFailure);
    return Status::Failed;
}

Status exportDocument(clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command)
{
    if (!FileSystem().FolderExists(command.target)) {
        console.tell(QStringLiteral("Export Path"),
            QStringLiteral("The selected Export Path does not exist. Please select a valid folder and try again."));
        return Status::Failed;
    }
    const QString exportFolder = QDir(command.target).absolutePath();
    const QString name = command.nameByFile ? mdDocumentNameByFile(command.claim, form.FormType()) : form.FormType();
    const QString document = mdFinishedDocumentPath(exportFolder, name);
    if (const QString there = whatMayNotBeReplaced(command, document); !there.isEmpty())
        return documentExists(console, there);
    clsExport run {
        .form = form, .templatesFolder = command.templates.isEmpty() ? TemplatesFolder() : command.templates};
    run.exportFolder = exportFolder;
    run.documentName = name;
    run.claimFile = command.claim;
    run.mayReplace = command.force;
    run.stopsAtLostSheet = true;
    run.keepsSheets = command.keepSheets;
    const Status status = guarded(console, Status::Failed, [&] { return exportSheetsAndDocument(console, run); });
    if (status != Status::Done) {
        sweep(run);
        return status;
    }
    return command.pdf ? makePdf(console, command, document) : status;
}

Status runOnClaim(clsConsoleUserInterface &console, const clsToolCommand &command)
{
    return guarded(console, Status::Failed, [&] {
        clsZR3Form form;
        const auto soundness = command.verb == clsToolCommand::Why ? Soundness::InSome : Soundness::InAllParts;
        if (const Status status = load(console, form, command.claim, soundness); status != Status::Done)
            return status;
        switch (command.verb) {
        case clsToolCommand::Totals: return totals(console, form);
        case clsToolCommand::Check: return check(form);
        case clsToolCommand::Save: return save(console, form, command.target);
        case clsToolCommand::Forecast: return forecast(form, command);
        case clsToolCommand::Export: return exportDocument(console, form, command);
        case clsToolCommand::Why: return mdWhyFigure(form, command);
        case clsToolCommand::CheckFull:
        case clsToolCommand::Diff:
        case clsToolCommand::Help:
        case clsToolCommand::Version: break;
        }
        return Status::WrongUsage;
    });
}

Status runOnClaims(clsConsoleUserInterface &console, const clsToolCommand &command)
{
    const clsClaimReader read
        = [&](clsZR3Form &form, const QString &path) { return load(console, form, path, Soundness::InSome); };
    return guarded(console, Status::Failed, [&] {
        return command.verb == clsToolCommand::Diff ? mdDiff(console, command, read)
                                                    : mdCheckFull(console, command, read);
    });
}

/// Refuses names that the command's texts can't hold; nothing where all is well.
std::optional<Status> refusal(
    clsConsoleUserInterface &console, const clsToolCommand &command, const QByteArrayList &arguments)
{
    QByteArray name = NameNotInUtf8(arguments);
    // What is written is named by its whole path.
    if (name.isEmpty() && !command.target.isEmpty() && QDir::isRelativePath(command.target))
        name = NameNotInUtf8({CurrentFolderName()});
    if (name.isEmpty())
        return {};
    console.tell(QStringLiteral("File Name"), RefusalOfName(name));
    const QString refused = QFile::decodeName(name);
    return refused == command.claim || command.claims.contains(refused) ? Status::NoClaim : Status::Failed;
}

Status run(const QByteArrayList &names)
{
    QStringList arguments;
    for (const QByteArray &name : names)
        arguments << QFile::decodeName(name);
    clsConsoleUserInterface console;
    const clsUserInterfaceScope scope(console);
    const auto command = clsToolCommand::read(arguments);
    if (!command) {
        std::fputs(clsToolCommand::usage().toUtf8().constData(), stderr);
        return Status::WrongUsage;
    }
    if (command->verb == clsToolCommand::Help) {
        mdPrintBytes(clsToolCommand::usage().toUtf8());
    } else if (command->verb == clsToolCommand::Version) {
        mdPrint(stdout, QStringLiteral("Velmor ZR3 %1\r\n").arg(GetVersionInfo()));
    } else {
        if (const auto refused = refusal(console, *command, names))
            return *refused;
        console.showsProgress = !command->quiet;
        if (!command->claims.isEmpty())
            return runOnClaims(console, *command);
        return runOnClaim(console, *command);
    }
    return Status::Done;
}

} // namespace

int main(int argc, char **argv)
{
    MakeSizeLimitAnError();
    QCoreApplication application(argc, argv);
    const Status status = run(QByteArrayList(argv + 1, argv + argc));
    // A result that did not reach its reader, say on a full disk, is a failure like any other.
    if (std::fflush(stdout) != 0 || std::ferror(stdout)) {
        std::fputs("Standard output: The result could not be written.\n", stderr);
        return int(Status::Failed);
    }
    return int(status);
}
