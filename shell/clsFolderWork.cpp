#include "shell/clsFolderWork.h"

#include "shell/clsFolderRow.h"

#include <QProcess>

#include <algorithm>
#include <utility>

void clsFolderWork::Start(clsRun run)
{
    m_runs.push_back(std::move(run));
    if (m_runs.size() == 1)
        begin();
}

void clsFolderWork::begin()
{
    m_printed.clear();
    m_lines = 0;
    m_process = mdToolProcess(tool, m_runs.front().arguments);
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &clsFolderWork::read);
    connect(m_process.get(), &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
        read();
        const QString told = QString::fromUtf8(m_process->readAllStandardError()).simplified();
        if (how == QProcess::NormalExit)
            end({status, false, m_printed, told});
        else
            end({-1, false, m_printed, QStringLiteral("zr3tool has ended before it was done.")});
    });
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end({-1, false, {}, QStringLiteral("zr3tool could not be started: ") + m_process->errorString()});
    });
    emit Changed();
    show();
    m_process->start(QIODevice::ReadOnly);
}

void clsFolderWork::read()
{
    const QByteArray bytes = m_process->readAllStandardOutput();
    m_printed += bytes;
    m_lines += int(bytes.count('\n'));
    show();
}

void clsFolderWork::show()
{
    const clsRun &run = m_runs.front();
    const int all = int(run.claims.size());
    const int at = std::min(m_lines, all - 1);
    const QString what = all == 0
        ? run.what
        : QStringLiteral("%1: %2, %3 of %4").arg(run.what, mdNameOfClaim(run.claims[at])).arg(at + 1).arg(all);
    emit Progress(what, m_lines, all);
}

void clsFolderWork::Cancel()
{
    if (!isRunning())
        return;
    m_runs.resize(1);
    end({-1, true, m_printed, {}});
}

void clsFolderWork::end(const clsResult &result)
{
    m_process.reset();
    const clsRun run = std::move(m_runs.front());
    m_runs.pop_front();
    if (m_runs.empty())
        emit Changed();
    else
        begin();
    run.done(result);
}
