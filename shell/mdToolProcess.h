#pragma once

#include <QStringList>

#include <memory>

class QObject;
class QProcess;

/// The path of the command-line program beside this one, which reads claims for the windows.
QString mdToolPath();

/// Deletes a process without waiting: asks it to end, and kills it if it doesn't.
struct clsLeaveProcess {
    void operator()(QProcess *process) const;
};
using clsToolProcess = std::unique_ptr<QProcess, clsLeaveProcess>;

/// A process for it, not yet started.
clsToolProcess mdToolProcess(const QString &tool, const QStringList &arguments);
