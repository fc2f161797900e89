#pragma once

#include <QByteArray>

class QString;
struct stat;

/// A program's turn at writing in a folder, for as long as it lives: a guarded overwrite in the midst of another would
/// leave a mixture of both. It is a hidden file in that folder that only those can open who may write there, and it is
/// removed with the turn. Only writers wait for it. A program that doesn't let go in time loses its turn to the next.
class clsWriteLock {
public:
    /// Takes the turn at the folder in which the file at `path` lies.
    explicit clsWriteLock(const QString &path);
    ~clsWriteLock();
    clsWriteLock(const clsWriteLock &) = delete;
    clsWriteLock &operator=(const clsWriteLock &) = delete;

    /// True where another program may be writing at the same time: the turn was taken from it, or could not be had.
    /// False also where the file system knows no locks, since nothing can be done about that.
    bool isDoubtful() const { return m_doubtful; }
    /// True once the turn has been taken away.
    bool isLost() const;

    /// Whether a program has its turn at the folder of the file at `path`, or died in it. Anyone may ask.
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
