#pragma once

#include <QString>

/// An empty lock file that shows this user's other programs that the program is running. The system releases the lock
/// however the program ends. On a file system without locks the state is unknown.
class clsHeldFile {
public:
    enum class clsState { Free, Held, Unknown };

    /// Creates the file if missing, and locks it unless another program holds the lock.
    explicit clsHeldFile(const QString &path);
    /// Releases the lock; the file stays.
    ~clsHeldFile();
    clsHeldFile(const clsHeldFile &) = delete;
    clsHeldFile &operator=(const clsHeldFile &) = delete;

    /// Whether this object holds the lock. Also true on a file system without locks.
    bool isHeld() const { return m_descriptor >= 0; }

    /// Whether a program holds the file's lock. A missing file is free.
    static clsState of(const QString &path);
    /// Whether a process is running on this machine, for cases where a file can't show it.
    static bool processRuns(qint64 process);

private:
    int m_descriptor = -1;
};
