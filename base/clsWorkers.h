#pragma once

#include <QByteArray>

#include <functional>

class clsEndRequests;

/// Runs a list of jobs in child processes, several at a time. A process runs one job after another and is replaced once
/// it has grown too much. If one dies, only its current job is lost. The results waiting for their turn are limited:
/// while an early job takes long, later ones wait. For single-threaded programs that have no application object of the
/// toolkit yet.
class clsWorkers {
public:
    struct Row {
        qsizetype jobs = 0;
        int atATime = 1;
        /// The number of jobs queued at a process. More than one saves short jobs the wait for the next.
        int ahead = 1;
        /// Runs in each new process, before its first job.
        std::function<void()> begin;
        /// Runs a job in a child process and returns its result.
        std::function<QByteArray(qsizetype job)> work;
        /// The result of a job whose process was killed by that signal, or exited by itself if it is 0.
        std::function<QByteArray(qsizetype job, int signal)> lost;
        /// Receives the results in the order of the jobs; false stops the work.
        std::function<bool(qsizetype job, const QByteArray &result)> take;
        /// Cleans up after an interrupted job.
        std::function<void(qsizetype job)> sweep;
    };

    explicit clsWorkers(clsEndRequests &requests)
        : m_requests(requests)
    { }

    /// False if the work was stopped before all jobs were done. Running jobs have then been stopped and cleaned up.
    bool run(const Row &row);

private:
    class clsRun;
    clsEndRequests &m_requests;
};
