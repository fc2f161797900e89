#pragma once

#include <QByteArray>

#include <csignal>

/// Requests to end the program, for code that waits on several descriptors at once. While this object lives the signals
/// are queued at a descriptor; ignored signals stay ignored. A program with an event loop uses `clsEndSignalScope`.
class clsEndRequests {
public:
    clsEndRequests();
    ~clsEndRequests();
    clsEndRequests(const clsEndRequests &) = delete;
    clsEndRequests &operator=(const clsEndRequests &) = delete;

    /// Readable when there is a request.
    int descriptor() const { return m_descriptor; }
    /// The signal received, or 0.
    int signal();
    /// Call in a new child process: from then on only its parent ends it, not the terminal.
    void leaveToChild() const;

    /// Writes to a stream of the process; gives up if a request to end arrives while the reader blocks. False if not
    /// everything was written; a closed reader counts as a request.
    bool write(int descriptor, const QByteArray &bytes);
    /// Ends the program with the signal's default action.
    [[noreturn]] void endBySignal();

private:
    sigset_t m_before;
    int m_descriptor = -1;
    int m_signal = 0;
};
