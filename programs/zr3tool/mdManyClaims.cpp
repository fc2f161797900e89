#include "programs/zr3tool/mdManyClaims.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsEndRequests.h"
#include "base/clsWorkers.h"
#include "base/mdClaimPaths.h"
#include "base/mdCommandLine.h"
#include "base/mdPrint.h"
#include "programs/zr3tool/clsClaimWork.h"
#include "programs/zr3tool/clsFollowedClaims.h"
#include "programs/zr3tool/mdClaimSteps.h"
#include "programs/zr3tool/mdListClaim.h"
#include "programs/zr3tool/mdPlainReports.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <memory>
#include <optional>
#include <thread>

#include <unistd.h>

namespace {

using Status = clsExitStatus;
using Command = clsToolCommand;

/// Whether the results are a list, even of one claim or none.
bool isList(const Command &command)
{
    return command.verb == Command::List || command.claims.size() != 1 || QFileInfo(command.claims.front()).isDir();
}

/// The arguments that are not valid UTF-8, decoded as the program's texts show them, each with its message.
QHash<QString, QString> refusedOf(const QByteArrayList &arguments)
{
    QHash<QString, QString> refused;
    for (const QByteArray &argument : arguments)
        if (!NameNotInUtf8({argument}).isEmpty())
            refused.insert(QFile::decodeName(argument), RefusalOfName(argument));
    return refused;
}

std::vector<clsClaimJob> jobsOf(const Command &command, const QHash<QString, QString> &refused)
{
    std::vector<clsClaimJob> jobs;
    for (const QString &argument : command.claims) {
        if (refused.contains(argument)) {
            jobs.push_back({argument, QStringLiteral("File Name"), refused[argument]});
            continue;
        }
        for (clsClaimPath &claim : mdClaimPaths(argument))
            jobs.push_back({std::move(claim.path), std::move(claim.errorTitle), std::move(claim.error)});
    }
    return jobs;
}

/// Numbers the claims whose files have the same name, so that their documents have different ones. Depends only on the
/// paths, so that a repeated run gives the same names.
void numberNames(std::vector<clsClaimJob> &jobs)
{
    QHash<QString, int> counts;
    for (clsClaimJob &job : jobs)
        job.number = ++counts[mdNameByFile(job.path)];
}

class clsManyRun {
public:
    clsManyRun(clsConsoleUserInterface &console, const Command &command, const QByteArrayList &arguments);

    Status run();

private:
    bool open();
    bool close();
    bool work();
    bool follow();
    bool take(qsizetype job, const QByteArray &packed);
    bool print(const clsClaimResult &result);
    bool write(int descriptor, const QByteArray &bytes);
    void beginWorker() const;
    QByteArray lost(qsizetype job, int signal);
    void sweep(qsizetype job) const;
    clsWorkers::Row row();
    QByteArray printed(const QByteArray &result) const;

    clsConsoleUserInterface &m_console;
    const Command &m_command;
    QHash<QString, QString> m_refused; ///< arguments that the program's texts can't hold, and why
    std::vector<clsClaimJob> m_jobs;
    bool m_isList;
    qsizetype m_longestPath;
    clsResultForm m_form;
    clsClaimWork m_work;
    clsEndRequests m_requests;
    Status m_status = Status::Done;
    bool m_isFirst = true;
};

qsizetype longestPath(const std::vector<clsClaimJob> &jobs)
{
    qsizetype longest = 4; // the length of the column's heading
    for (const clsClaimJob &job : jobs)
        longest = std::max(longest, job.path.size());
    return longest;
}

clsManyRun::clsManyRun(clsConsoleUserInterface &console, const Command &command, const QByteArrayList &arguments)
    : m_console(console)
    , m_command(command)
    , m_refused(refusedOf(arguments))
    , m_jobs(jobsOf(command, m_refused))
    , m_isList(isList(command))
    , m_longestPath(longestPath(m_jobs))
    , m_form(mdResultForm(command))
    , m_work(console, command, m_isList, m_longestPath)
{
    if (command.verb == Command::Export)
        numberNames(m_jobs);
}

bool clsManyRun::write(int descriptor, const QByteArray &bytes)
{
    m_console.clearProgress();
    return bytes.isEmpty() || m_requests.write(descriptor, bytes);
}

/// A claim's part of the result, as written to standard output.
QByteArray clsManyRun::printed(const QByteArray &result) const
{
    switch (m_form) {
    case clsResultForm::Text: return mdPrinted(stdout, QString::fromUtf8(result));
    case clsResultForm::Csv:
        if (mdIsTerminal(stdout))
            return mdWithoutControls(QString::fromUtf8(result).chopped(2)).toUtf8() + "\r\n";
        return result;
    case clsResultForm::Json: return (m_isFirst ? "\n  " : ",\n  ") + result;
    case clsResultForm::JsonLines: return result + '\n';
    case clsResultForm::Nothing: break;
    }
    return {};
}

bool clsManyRun::open()
{
    if (m_form == clsResultForm::Json)
        return write(STDOUT_FILENO, "{\n \"Claims\": [");
    if (m_form == clsResultForm::Csv)
        return write(STDOUT_FILENO, mdListAsCsvHeader().toUtf8());
    if (m_command.verb == Command::List && m_form == clsResultForm::Text)
        return write(STDOUT_FILENO, mdPrinted(stdout, mdListAsTextHeader(m_longestPath)));
    return true;
}

bool clsManyRun::close()
{
    return m_form != clsResultForm::Json || write(STDOUT_FILENO, m_isFirst ? "]\n}\n" : "\n ]\n}\n");
}

bool clsManyRun::take(qsizetype job, const QByteArray &packed)
{
    const clsClaimResult result = clsClaimResult::unpacked(packed);
    m_status = std::max(m_status, result.status);
    if (!write(STDERR_FILENO, mdPrinted(stderr, result.messages)) && m_requests.signal())
        return false;
    if (!result.printed.isEmpty()) {
        if (!write(STDOUT_FILENO, printed(result.printed)))
            return false;
        m_isFirst = false;
    }
    m_console.showProgress(int(job + 1), int(m_jobs.size()), QStringLiteral("Claims done"));
    return true;
}

/// The application object of a worker, needed to start processes. Never deleted: it lasts as long as the worker.
struct clsWorkerApplication {
    int count = 1;
    char name[sizeof "zr3tool"] = "zr3tool";
    char *arguments[2] = {name, nullptr};
    QCoreApplication application {count, arguments};
};

void clsManyRun::beginWorker() const
{
    new clsWorkerApplication;
    m_console.showsProgress = false;
}

QByteArray clsManyRun::lost(qsizetype job, int signal)
{
    const QString how = signal
        ? QStringLiteral(
            "The process that worked on this claim was ended by signal %1. There may be too little memory for it.")
              .arg(signal)
        : QStringLiteral("The process that worked on this claim ended before it was done.");
    return m_work.failed(m_jobs[size_t(job)], Status::Failed, QStringLiteral("Claim"), how).packed();
}

void clsManyRun::sweep(qsizetype job) const
{
    if (m_command.verb != Command::Export || m_command.keepSheets)
        return;
    const clsClaimJob &of = m_jobs[size_t(job)];
    const QString name = m_isList ? mdTempFolderNameByFile(of.path, of.number) : QStringLiteral("~ZR3Temp");
    mdSweepExportTempFolder(QDir(m_command.target).absolutePath() + u'/' + name);
}

clsWorkers::Row clsManyRun::row()
{
    constexpr int ShortJobsAhead = 4;
    const bool isLong = m_command.verb == Command::Export || m_command.verb == Command::CheckFull;
    return {.jobs = qsizetype(m_jobs.size()),
        .atATime = m_command.jobs.value_or(int(std::max(1U, std::thread::hardware_concurrency()))),
        .ahead = isLong ? 1 : ShortJobsAhead,
        .begin = [this] { beginWorker(); },
        .work = [this](qsizetype job) { return m_work.on(m_jobs[size_t(job)]).packed(); },
        .lost = [this](qsizetype job, int signal) { return lost(job, signal); },
        .take = [this](qsizetype job, const QByteArray &result) { return take(job, result); },
        .sweep = [this](qsizetype job) { sweep(job); }};
}

bool clsManyRun::work()
{
    return clsWorkers(m_requests).run(row());
}

/// Reports changes until the program is asked to end or its output is no longer read; false if a write fails.
bool clsManyRun::follow()
{
    const auto writeLine = [this](const QByteArray &line) { return write(STDOUT_FILENO, line + '\n'); };
    clsFollowedClaims claims(m_requests);
    m_jobs = claims.changed(m_jobs);
    for (qsizetype known = -1;;) {
        if (!work())
            return false;
        for (const QString &path : claims.gone())
            if (!writeLine(mdGoneAsLine(path)))
                return false;
        if (const bool isNews = known != claims.count() || !m_jobs.empty() || !claims.gone().isEmpty();
            isNews && !writeLine(mdCountAsLine(claims.count())))
            return false;
        known = claims.count();
        if (!claims.wait())
            return true;
        m_jobs = claims.changed(jobsOf(m_command, m_refused));
    }
}

Status clsManyRun::run()
{
    const bool isDone = open() && (m_command.follow ? follow() : work()) && close();
    m_console.clearProgress();
    if (m_requests.signal())
        m_requests.endBySignal();
    return isDone ? m_status : mdTellUnwritten();
}

} // namespace

bool mdIsAboutMany(const Command &command)
{
    switch (command.verb) {
    case Command::List:
    case Command::Totals:
    case Command::Check:
    case Command::CheckFull:
    case Command::Export: return command.jsonLines || isList(command);
    default: return false;
    }
}

Status mdRunOnMany(clsConsoleUserInterface &console, const Command &command, const QByteArrayList &arguments)
{
    return mdGuarded(console, Status::Failed, [&] { return clsManyRun(console, command, arguments).run(); });
}
