#include "costing/mdCheckForBlankItems.h"
#include "formdata/clsZR3Form.h"
#include "shell/clsProgramEnd.h"
#include "shell/clsRunTimeError.h"
#include "shell/mdGetVersionInfo.h"
#include "shell/mdProgramFolder.h"
#include "shell/zr3tool/clsConsoleUserInterface.h"
#include "shell/zr3tool/clsToolCommand.h"
#include "shell/zr3tool/mdTotalsReport.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <functional>
#include <new>

namespace {

using Status = clsExitStatus;

void print(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
}

void print(QString text)
{
    print(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).toUtf8());
}

/// Runs a step; a run-time error in it is told, and the status says what it stands for.
Status guarded(clsConsoleUserInterface &console, Status onError, const std::function<Status()> &step)
{
    try {
        return step();
    } catch (const clsRunTimeError &error) {
        const QString cause = error.cause().isEmpty() ? QString() : u'\n' + error.cause();
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

Status load(clsConsoleUserInterface &console, clsZR3Form &form, const QString &path)
{
    // That a file which can't be read is no claim either goes without saying.
    console.showsOnlyFirstMessage = true;
    const Status status = guarded(console, Status::NoClaim, [&] {
        if (!form.LoadXML(path))
            return Status::NoClaim;
        // Nobody can mend the claim here.
        form.CheckDerivedCollections();
        return Status::Done;
    });
    console.showsOnlyFirstMessage = false;
    return status;
}

Status totals(clsConsoleUserInterface &console, const clsZR3Form &form)
{
    const clsTotalsReport report = mdTotalsReport(form);
    print(report.json);
    if (!report.hasFailures)
        return Status::Done;
    console.tell(QStringLiteral("Totals"),
        QStringLiteral(
            "Some figures of this claim can't be computed. Each of them stands as \"!\" and the number of its "
            "run-time error.")
            + (report.causes.isEmpty() ? QString() : u'\n' + report.causes.join(u'\n')));
    return Status::Failed;
}

Status check(const clsZR3Form &form)
{
    QString message = mdBlankItemsMessage(form);
    const bool blank = mdCountBlankScheduleItems(form) > 0 || mdCountBlankDisbursements(form) > 0;
    print(message.endsWith(u'\n') ? message : message + u'\n');
    return blank ? Status::BlankItems : Status::Done;
}

Status save(const clsConsoleUserInterface &console, clsZR3Form &form, const QString &newFile)
{
    const int messagesBefore = console.messageCount();
    // Not read back from the claim, which keeps its texts in the code page: a file's name may have other characters.
    const QString path = QFileInfo(newFile).absoluteFilePath();
    form.path = path;
    form.Version = GetVersionInfo();
    form.SaveXML(path);
    return console.messageCount() > messagesBefore ? Status::Failed : Status::Done;
}

Status exportSheetsAndDocument(clsConsoleUserInterface &console, clsExport &run)
{
    if (const clsExportDriver driver = mdExportDriver(run.form.FormType()))
        return driver(run) ? Status::Done : Status::Failed;
    console.tell(QStringLiteral("Export"),
        QStringLiteral("There are no pages for the form type \"%1\" of this claim.").arg(run.form.FormType()));
    return Status::Failed;
}

/// Sweeps away what a failed export left in its folder. The failure itself has been told, so that this is silent.
void sweep(const clsExport &run)
{
    try {
        if (run.folderLock && !run.keepsSheets && QFileInfo::exists(mdExportTempFolder(run.exportFolder)))
            mdClearExportTempFolder(run.exportFolder, true);
    } catch (const std::exception &) { }
}

Status exportDocument(clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command)
{
    const QFileInfo folder(command.target);
    if (!folder.isDir()) {
        console.tell(QStringLiteral("Export Path"),
            QStringLiteral("The selected Export Path does not exist. Please select a valid folder and try again."));
        return Status::Failed;
    }
    const QString exportFolder = QDir(command.target).absolutePath();
    const QString document = mdFinishedDocumentPath(exportFolder, form.FormType());
    if (!command.force && QFileInfo::exists(document)) {
        console.tell(QStringLiteral("Export"),
            QStringLiteral("The document %1 exists already. Give --force to replace it.")
                .arg(QDir::toNativeSeparators(document)));
        return Status::DocumentExists;
    }
    clsExport run {
        .form = form, .templatesFolder = command.templates.isEmpty() ? TemplatesFolder() : command.templates};
    run.exportFolder = exportFolder;
    run.stopsAtLostSheet = true;
    run.keepsSheets = command.keepSheets;
    const Status status = guarded(console, Status::Failed, [&] { return exportSheetsAndDocument(console, run); });
    if (status != Status::Done)
        sweep(run);
    return status;
}

Status runOnClaim(clsConsoleUserInterface &console, const clsToolCommand &command)
{
    return guarded(console, Status::Failed, [&] {
        clsZR3Form form;
        if (const Status status = load(console, form, command.claim); status != Status::Done)
            return status;
        switch (command.verb) {
        case clsToolCommand::Totals: return totals(console, form);
        case clsToolCommand::Check: return check(form);
        case clsToolCommand::Save: return save(console, form, command.target);
        case clsToolCommand::Export: return exportDocument(console, form, command);
        case clsToolCommand::Help:
        case clsToolCommand::Version: break;
        }
        return Status::WrongUsage;
    });
}

Status run(const QStringList &arguments)
{
    clsConsoleUserInterface console;
    const clsUserInterfaceScope scope(console);
    const auto command = clsToolCommand::read(arguments);
    if (!command) {
        std::fputs(clsToolCommand::usage().toUtf8().constData(), stderr);
        return Status::WrongUsage;
    }
    if (command->verb == clsToolCommand::Help) {
        print(clsToolCommand::usage());
    } else if (command->verb == clsToolCommand::Version) {
        print(QStringLiteral("Velmor ZR3 %1\n").arg(GetVersionInfo()));
    } else {
        console.showsProgress = !command->quiet;
        return runOnClaim(console, *command);
    }
    return Status::Done;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const Status status = run(application.arguments().mid(1));
    // A result that did not reach its reader, say on a full disk, is a failure like any other.
    if (std::fflush(stdout) != 0 || std::ferror(stdout)) {
        std::fputs("Standard output: The result could not be written.\n", stderr);
        return int(Status::Failed);
    }
    return int(status);
}
