#pragma once

#include <QByteArray>

#include <functional>

class clsEndRequests;

/// Works through a row of jobs in processes of their own, so many at a time. A process does one job after the other,
/// and is replaced by a new one once it has grown. One that dies costs the job that it had in hand and no other. What
/// waits for its turn is bounded: while an early job takes long, the later ones wait. To be used by a program of one
/// thread that has no application object of the toolkit yet.
class clsWorkers {
public:
    struct Row {
        qsizetype jobs = 0;
        int atATime = 1;
        /// How many jobs a process is given at once. More than one saves short jobs the wait for the next.
        int ahead = 1;
        /// In each new process, before its first job.
        std::function<void()> begin;
        /// Does a job, in a process of its own, and returns its result.
        std::function<QByteArray(qsizetype job)> work;
        /// The result of a job whose process was ended by that signal, or by itself where it is 0.
        std::function<QByteArray(qsizetype job, int signal)> lost;
        /// Takes the results, in the order of the jobs; false ends the work.
        std::function<bool(qsizetype job, const QByteArray &result)> take;
        /// Clears away after a job that was broken off.
        std::function<void(qsizetype job)> sweep;
    };

    explicit clsWorkers(clsEndRequests &requests)
        : m_requests(requests)
    { }

    /// False where the work was ended before all jobs were done. Whatever was in hand has been stopped and swept then.
    bool run(const Row &row);

private:
    class clsRun;
    clsEndRequests &m_requests;
};
