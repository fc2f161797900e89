#pragma once

#include <QByteArray>

class QString;
struct stat;

/// A program's turn at writing in a folder, while this object lives: two guarded overwrites at once would leave a
/// mixture of both. The lock is a hidden file in that folder, which only users with write access to the folder can
/// open; it is deleted at the end of the turn. Only writers wait for it. A program that doesn't finish in time loses
/// its turn to the next.
class clsWriteLock {
public:
    /// Takes the turn at the folder of the file at `path`.
    explicit clsWriteLock(const QString &path);
    ~clsWriteLock();
    clsWriteLock(const clsWriteLock &) = delete;
    clsWriteLock &operator=(const clsWriteLock &) = delete;

    /// True if another program may be writing at the same time: the turn was lost or could not be taken. False on a
    /// file system without locks, where nothing can be done.
    bool isDoubtful() const { return m_doubtful; }
    /// True once another program has taken over the turn.
    bool isLost() const;

    /// Whether a program has its turn at the folder of the file at `path`, or died during it. Callers need no write
    /// access.
    static bool isTaken(const QString &path);

private:
    enum class Result { Taken, Busy, Unknown, Impossible };
    Result tryToTake();
    void wait();
    void create();
    bool isThere() const;

    QByteArray m_file;
    int m_descriptor = -1;
    bool m_doubtful = false;
};
