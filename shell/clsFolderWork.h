#pragma once

#include "shell/mdToolProcess.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>

/// Work on several claims by processes beside the window: one run at a time, the next when that has ended.
class clsFolderWork : public QObject {
    Q_OBJECT

public:
    /// What a run came to.
    struct clsResult {
        int status = -1; ///< that of the headless program; -1 where it did not come to its end
        bool isCancelled = false;
        QByteArray printed;
        QString trouble; ///< why it did not come to its end, or what it had to say
    };

    struct clsRun {
        QString what; ///< such as "Exporting"
        QStringList arguments;
        QStringList claims; ///< for each of which a line is printed; none where nothing tells how far it is
        std::function<void(const clsResult &)> done; ///< called once it has ended or is cancelled
    };

    using QObject::QObject;

    void Start(clsRun run);
    /// Stops what runs and drops what waits.
    void Cancel();
    bool isRunning() const { return m_process != nullptr; }

    QString tool = mdToolPath();

signals:
    void Progress(const QString &what, int done, int all);
    /// It runs, or no longer.
    void Changed();

private:
    void begin();
    void read();
    void show();
    void end(const clsResult &result);

    clsToolProcess m_process;
    std::deque<clsRun> m_runs; ///< the first is the one that runs
    QByteArray m_printed;
    int m_lines = 0;
};
