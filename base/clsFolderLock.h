#pragma once

#include <QByteArray>

class QString;

/// Keeps other programs of this machine out of a folder while it lives. The lock is on the folder itself, and anyone
/// with read access can hold it: use it only for folders private to one user. Without effect on a file system without
/// locks. Raises an error if another program doesn't release its lock in time.
class clsFolderLock {
public:
    enum class Wait { AWhile, NotAtAll };

    explicit clsFolderLock(const QString &folder, Wait wait = Wait::AWhile);
    ~clsFolderLock();
    clsFolderLock(const clsFolderLock &) = delete;
    clsFolderLock &operator=(const clsFolderLock &) = delete;

    /// False if the folder was deleted while this program waited for the lock, which is then useless.
    bool isOfWhatIsThere() const;

private:
    QByteArray m_folder;
    int m_descriptor;
};
