#include "programs/zr3tool/clsClaimWork.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsJsonWriter.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/mdCheckFull.h"
#include "programs/zr3tool/mdClaimSteps.h"
#include "programs/zr3tool/mdExportClaim.h"
#include "programs/zr3tool/mdListClaim.h"
#include "programs/zr3tool/mdPlainReports.h"

#include <QDataStream>
#include <QIODevice>

using Status = clsExitStatus;
using Command = clsToolCommand;

QByteArray clsClaimResult::packed() const
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << int(status) << printed << messages;
    return bytes;
}

clsClaimResult clsClaimResult::unpacked(const QByteArray &bytes)
{
    clsClaimResult result;
    int status = 0;
    QDataStream(bytes) >> status >> result.printed >> result.messages;
    result.status = Status(status);
    return result;
}

clsResultForm mdResultForm(const clsToolCommand &command)
{
    if (command.jsonLines)
        return clsResultForm::JsonLines;
    switch (command.verb) {
    case Command::Totals: return clsResultForm::Json;
    case Command::Export: return clsResultForm::Nothing;
    case Command::List:
        if (command.csv)
            return clsResultForm::Csv;
        [[fallthrough]];
    default: return command.json ? clsResultForm::Json : clsResultForm::Text;
    }
}

clsClaimWork::clsClaimWork(
    clsConsoleUserInterface &console, const clsToolCommand &command, bool isList, qsizetype longestPath)
    : m_console(console)
    , m_command(command)
    , m_form(mdResultForm(command))
    , m_isList(isList)
    , m_longestPath(longestPath)
{ }

/// An object in the output format: on one line, or indented for its place in the list.
template <class Write> QByteArray clsClaimWork::json(Write write) const
{
    clsJsonWriter writer;
    write(writer);
    QByteArray bytes = writer.bytes();
    bytes.chop(1);
    if (m_form == clsResultForm::Json)
        return bytes.replace("\n", "\n  ");
    // Line feeds within texts are escaped, so each one here is followed only by indentation.
    QByteArray line;
    line.reserve(bytes.size());
    bool isIndent = false;
    for (const char c : bytes) {
        isIndent = c == '\n' || (isIndent && c == ' ');
        if (!isIndent)
            line += c;
    }
    return line;
}

template <class Write> QByteArray clsClaimWork::jsonOf(const clsClaimJob &job, Write write) const
{
    if (m_form != clsResultForm::Json && m_form != clsResultForm::JsonLines)
        return {};
    return json([&](clsJsonWriter &writer) {
        writer.beginObject();
        writer.text("Path", job.path);
        write(writer);
        writer.endObject();
    });
}

/// The output for a claim without a result.
QByteArray clsClaimWork::failure(const clsClaimJob &job, Status status) const
{
    const QString text = m_console.lastText();
    if (m_command.verb != Command::List)
        return jsonOf(job, [&](clsJsonWriter &writer) { writer.text("Error", text); });
    const clsListedClaim claim = mdUnlistedClaim(job.path, status, text);
    switch (m_form) {
    case clsResultForm::Csv: return mdListAsCsv(claim).toUtf8();
    case clsResultForm::Text: return mdListAsText(claim, m_longestPath).toUtf8();
    default: return json([&](clsJsonWriter &writer) { mdWriteListed(writer, claim); });
    }
}

template <class Work> clsClaimResult clsClaimWork::collected(const clsClaimJob &job, Work work)
{
    clsClaimResult result;
    m_console.collectsIn = &result.messages;
    m_console.beginSubject(m_isList ? job.path + QStringLiteral(": ") : QString());
    result.status = mdGuarded(m_console, Status::Failed, [&] { return work(result.printed); });
    if (result.printed.isEmpty() && result.status != Status::Done)
        result.printed = failure(job, result.status);
    m_console.collectsIn = nullptr;
    return result;
}

clsClaimResult clsClaimWork::on(const clsClaimJob &job)
{
    if (!job.error.isEmpty())
        return failed(job, Status::NoClaim, job.errorTitle, job.error);
    return collected(job, [&](QByteArray &printed) { return workOn(job, printed); });
}

clsClaimResult clsClaimWork::failed(const clsClaimJob &job, Status status, const QString &title, const QString &text)
{
    return collected(job, [&](QByteArray &) {
        m_console.tell(title, text);
        return status;
    });
}

Status clsClaimWork::workOn(const clsClaimJob &job, QByteArray &printed)
{
    switch (m_command.verb) {
    case Command::Totals: return totals(job, printed);
    case Command::Check: return check(job, printed);
    case Command::CheckFull: return checkFull(job, printed);
    case Command::List: return list(job, printed);
    case Command::Export: return exportDocument(job, printed);
    default: return Status::WrongUsage;
    }
}

Status clsClaimWork::totals(const clsClaimJob &job, QByteArray &printed)
{
    clsZR3Form form;
    if (const Status status = mdLoadClaim(m_console, form, job.path); status != Status::Done)
        return status;
    const clsTotalsReport report = mdTotalsReport(form);
    printed = jsonOf(job, [&](clsJsonWriter &writer) { writer.written("Totals", report.json); });
    return mdTellTotals(m_console, report);
}

Status clsClaimWork::check(const clsClaimJob &job, QByteArray &printed)
{
    clsZR3Form form;
    if (const Status status = mdLoadClaim(m_console, form, job.path); status != Status::Done)
        return status;
    const clsBlankItems blank = mdBlankItems(form);
    if (m_form == clsResultForm::JsonLines)
        printed = jsonOf(job, [&](clsJsonWriter &writer) { mdWriteBlankItems(writer, blank); });
    else
        printed = (job.path + QStringLiteral(": ") + mdBlankItemsInLines(blank)).toUtf8();
    return blank.isFound() ? Status::BlankItems : Status::Done;
}

Status clsClaimWork::checkFull(const clsClaimJob &job, QByteArray &printed)
{
    const clsCheckedClaim claim = mdCheckedClaim(m_console, m_command, job.path);
    if (claim.status == Status::NoClaim)
        return claim.status;
    if (m_form == clsResultForm::Text)
        printed = mdFindingsInLines(claim.findings, job.path + QStringLiteral(": ")).toUtf8();
    else
        printed = jsonOf(job, [&](clsJsonWriter &writer) { mdWriteFindings(writer, claim.findings); });
    return claim.status;
}

Status clsClaimWork::list(const clsClaimJob &job, QByteArray &printed)
{
    const clsListedClaim claim = mdListedClaim(m_console, m_command, job.path);
    switch (m_form) {
    case clsResultForm::Csv: printed = mdListAsCsv(claim).toUtf8(); break;
    case clsResultForm::Text: printed = mdListAsText(claim, m_longestPath).toUtf8(); break;
    default: printed = json([&](clsJsonWriter &writer) { mdWriteListed(writer, claim); });
    }
    return claim.status;
}

Status clsClaimWork::exportDocument(const clsClaimJob &job, QByteArray &printed)
{
    clsZR3Form form;
    if (const Status status = mdLoadClaim(m_console, form, job.path); status != Status::Done)
        return status;
    const clsExportOutcome outcome = mdExportClaim(m_console, form, m_command,
        {.claim = job.path,
            .isNamedByFile = m_isList || m_command.nameByFile,
            .number = job.number,
            .sharesFolder = m_isList});
    if (outcome.status == Status::Done)
        printed = jsonOf(job, [&](clsJsonWriter &writer) {
            writer.text("Document", outcome.document);
            if (!outcome.pdf.isEmpty())
                writer.text("PDF", outcome.pdf);
            if (outcome.isPassedBy)
                writer.boolean("PassedBy", true);
        });
    return outcome.status;
}
