#include "shell/mdToolProcess.h"

#include "base/mdProgramFolder.h"

#include <QProcess>
#include <QTimer>

namespace {

/// The time that a process has to clean up, in milliseconds.
constexpr int TimeToEnd = 3000;

} // namespace

QString mdToolPath()
{
    return ProgramPath(QStringLiteral("zr3tool"));
}

void clsLeaveProcess::operator()(QProcess *process) const
{
    process->disconnect();
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
        return;
    }
    process->closeReadChannel(QProcess::StandardOutput);
    process->closeReadChannel(QProcess::StandardError);
    // The object has no parent, so that the end of the program doesn't wait for the process.
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
    QTimer::singleShot(TimeToEnd, process, &QProcess::kill);
    process->terminate();
}

clsToolProcess mdToolProcess(const QString &tool, const QStringList &arguments)
{
    clsToolProcess process(new QProcess);
    process->setProgram(tool);
    process->setArguments(arguments);
    process->setStandardInputFile(QProcess::nullDevice());
    return process;
}
