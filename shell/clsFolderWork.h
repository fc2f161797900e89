#pragma once

#include "shell/mdToolProcess.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>

/// Work on several claims by separate processes, one run at a time; further runs wait in a queue.
class clsFolderWork : public QObject {
    Q_OBJECT

public:
    /// The outcome of a run.
    struct clsResult {
        int status = -1; ///< the exit status of the command-line program; -1 if it did not finish
        bool isCancelled = false;
        QByteArray printed;
        QString trouble; ///< why it did not finish, or its error output
    };

    struct clsRun {
        QString what; ///< such as "Exporting"
        QStringList arguments;
        QStringList claims; ///< a line is printed for each, as progress; empty if the run has no progress
        std::function<void(const clsResult &)> done; ///< called once it has ended or is cancelled
    };

    using QObject::QObject;

    void Start(clsRun run);
    /// Stops the present run and drops the waiting ones.
    void Cancel();
    bool isRunning() const { return m_process != nullptr; }

    QString tool = mdToolPath();

signals:
    void Progress(const QString &what, int done, int all);
    /// A run has started, or the last has ended.
    void Changed();

private:
    void begin();
    void read();
    void show();
    void end(const clsResult &result);

    clsToolProcess m_process;
    std::deque<clsRun> m_runs; ///< the first is running
    QByteArray m_printed;
    int m_lines = 0;
};
