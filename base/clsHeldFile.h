#pragma once

#include <QString>

/// An empty lock file that tells this user's other programs that the program is running. The system releases the lock
/// however the program ends. On a file system without locks the state is unknown.
class clsHeldFile {
public:
    enum class clsState { Free, Held, Unknown };

    /// Makes the file where it is missing, and holds it unless another program does.
    explicit clsHeldFile(const QString &path);
    /// Lets go of it; the file stays.
    ~clsHeldFile();
    clsHeldFile(const clsHeldFile &) = delete;
    clsHeldFile &operator=(const clsHeldFile &) = delete;

    /// Whether it is this object's. Also true where the file system knows no locks.
    bool isHeld() const { return m_descriptor >= 0; }

    /// Whether a program holds the file. A missing one is free.
    static clsState of(const QString &path);
    /// Whether a process of this machine runs, where a file can't tell.
    static bool processRuns(qint64 process);

private:
    int m_descriptor = -1;
};
