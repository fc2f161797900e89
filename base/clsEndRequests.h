#pragma once

#include <QByteArray>

#include <csignal>

/// The system's requests that the program ends, for one that waits for several things at once. While this object lives
/// they wait at a descriptor; those that are ignored stay so. A program with an event loop has `clsEndSignalScope`.
class clsEndRequests {
public:
    clsEndRequests();
    ~clsEndRequests();
    clsEndRequests(const clsEndRequests &) = delete;
    clsEndRequests &operator=(const clsEndRequests &) = delete;

    /// Can be read where there is a request.
    int descriptor() const { return m_descriptor; }
    /// The signal that has asked, or 0.
    int signal();
    /// In a new process: it is told to end by this one alone, and not by the terminal beside it.
    void leaveToChild() const;

    /// Writes to a stream of the process, and gives up where it is asked to end while the reader keeps it waiting.
    /// False where not all was written; a reader that is gone counts as a request.
    bool write(int descriptor, const QByteArray &bytes);
    /// Ends the program as the signal would have.
    [[noreturn]] void endBySignal();

private:
    sigset_t m_before;
    int m_descriptor = -1;
    int m_signal = 0;
};
