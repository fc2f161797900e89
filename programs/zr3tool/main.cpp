#include "base/clsConsoleUserInterface.h"
#include "base/mdCommandLine.h"
#include "base/mdEndSignals.h"
#include "base/mdGetVersionInfo.h"
#include "base/mdPrint.h"
#include "base/mdProgramFolder.h"
#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/clsToolCommand.h"
#include "programs/zr3tool/mdCheckFull.h"
#include "programs/zr3tool/mdClaimSteps.h"
#include "programs/zr3tool/mdDiff.h"
#include "programs/zr3tool/mdExportClaim.h"
#include "programs/zr3tool/mdManyClaims.h"
#include "programs/zr3tool/mdPlainReports.h"
#include "programs/zr3tool/mdTables.h"
#include "wordexport/mdForecast.h"
#include "wordexport/mdForecastReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <optional>

namespace {

using Status = clsExitStatus;

Status totals(clsConsoleUserInterface &console, const clsZR3Form &form)
{
    const clsTotalsReport report = mdTotalsReport(form);
    mdPrintBytes(report.json);
    return mdTellTotals(console, report);
}

Status check(const clsZR3Form &form)
{
    const clsBlankItems blank = mdBlankItems(form);
    mdPrint(stdout, mdBlankItemsInLines(blank));
    return blank.isFound() ? Status::BlankItems : Status::Done;
}

Status save(const clsConsoleUserInterface &console, clsZR3Form &form, const QString &newFile)
{
    const int failuresBefore = console.failureCount();
    // Not read back from the claim, which stores its texts in the code page: a file name may have other characters.
    const QString path = QFileInfo(newFile).absoluteFilePath();
    form.path = path;
    form.Version = GetVersionInfo();
    form.SaveXML(path);
    return console.failureCount() > failuresBefore ? Status::Failed : Status::Done;
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

Status exportDocument(clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command)
{
    return mdExportClaim(console, form, command, {.claim = command.claim, .isNamedByFile = command.nameByFile}).status;
}

Status runOnClaim(clsConsoleUserInterface &console, const clsToolCommand &command)
{
    return mdGuarded(console, Status::Failed, [&] {
        clsZR3Form form;
        const bool showsFailures = command.verb == clsToolCommand::Why || command.verb == clsToolCommand::Table;
        const auto soundness = showsFailures ? clsSoundness::InSome : clsSoundness::InAllParts;
        if (const Status status = mdLoadClaim(console, form, command.claim, soundness); status != Status::Done)
            return status;
        switch (command.verb) {
        case clsToolCommand::Totals: return totals(console, form);
        case clsToolCommand::Check: return check(form);
        case clsToolCommand::Save: return save(console, form, command.target);
        case clsToolCommand::Forecast: return forecast(form, command);
        case clsToolCommand::Export: return exportDocument(console, form, command);
        case clsToolCommand::Why: return mdWhyFigure(form, command);
        case clsToolCommand::Table: return mdPrintTable(console, form, command);
        case clsToolCommand::Import:
            return mdImport(
                console, form, command, [&](clsZR3Form &changed) { return save(console, changed, command.target); });
        case clsToolCommand::CheckFull:
        case clsToolCommand::List:
        case clsToolCommand::Diff:
        case clsToolCommand::Help:
        case clsToolCommand::Version: break;
        }
        return Status::WrongUsage;
    });
}

/// Refuses names that the program's texts can't represent; nothing if all are valid. Of several claims each is refused
/// separately.
std::optional<Status> refusal(
    clsConsoleUserInterface &console, const clsToolCommand &command, const QByteArrayList &arguments)
{
    const bool isMany = mdIsAboutMany(command);
    QByteArrayList names = arguments;
    if (isMany)
        names.removeIf([&](const QByteArray &name) { return command.claims.contains(QFile::decodeName(name)); });
    QByteArray name = NameNotInUtf8(names);
    // A relative target is expanded with the current folder's name.
    if (name.isEmpty() && !command.target.isEmpty() && QDir::isRelativePath(command.target))
        name = NameNotInUtf8({CurrentFolderName()});
    if (name.isEmpty())
        return {};
    console.tell(QStringLiteral("File Name"), RefusalOfName(name));
    const QString refused = QFile::decodeName(name);
    return refused == command.claim || command.claims.contains(refused) ? Status::NoClaim : Status::Failed;
}

Status runOn(clsConsoleUserInterface &console, const clsToolCommand &command, const QByteArrayList &names)
{
    if (const auto refused = refusal(console, command, names))
        return *refused;
    console.showsProgress = !command.quiet;
    if (mdIsAboutMany(command))
        return mdRunOnMany(console, command, names);
    int count = 1;
    char name[] = "zr3tool";
    char *arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    switch (command.verb) {
    case clsToolCommand::CheckFull:
        return mdGuarded(console, Status::Failed, [&] { return mdCheckFull(console, command); });
    case clsToolCommand::Diff: return mdGuarded(console, Status::Failed, [&] { return mdDiff(console, command); });
    default: return runOnClaim(console, command);
    }
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
        return runOn(console, *command, names);
    }
    return Status::Done;
}

} // namespace

int main(int argc, char **argv)
{
    MakeSizeLimitAnError();
    const Status status = run(QByteArrayList(argv + 1, argv + argc));
    return int(std::fflush(stdout) != 0 || std::ferror(stdout) ? mdTellUnwritten() : status);
}
