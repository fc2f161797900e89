#pragma once

#include <QStringList>

#include <memory>

class QObject;
class QProcess;

/// The headless program beside this one, which reads claims for the windows.
QString mdToolPath();

/// Lets go of a process when its owner no longer needs it: told to end, and killed where it doesn't. Nothing waits.
struct clsLeaveProcess {
    void operator()(QProcess *process) const;
};
using clsToolProcess = std::unique_ptr<QProcess, clsLeaveProcess>;

/// A run of it that is yet to be started.
clsToolProcess mdToolProcess(const QString &tool, const QStringList &arguments);
