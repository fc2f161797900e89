#pragma once

#include <QByteArray>

#include <functional>

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

    clsWorkers();
    ~clsWorkers();
    clsWorkers(const clsWorkers &) = delete;
    clsWorkers &operator=(const clsWorkers &) = delete;

    /// False where the work was ended before all jobs were done. Whatever was in hand has been stopped and swept then.
    bool run(const Row &row);

    /// Writes to a stream of the process, and stops where it is asked to end while its reader keeps it waiting. False
    /// where not all was written.
    bool write(int descriptor, const QByteArray &bytes);

    /// The signal that has asked the program to end, or 0.
    int signalToEnd() const;
    /// Ends the program as that signal would have.
    [[noreturn]] void endBySignal() const;

private:
    class clsRequests;
    class clsRun;
    clsRequests *m_requests;
};
