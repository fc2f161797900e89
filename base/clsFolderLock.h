#pragma once

#include <QByteArray>

class QString;

/// Keeps the other programs of this machine out of a folder for as long as it lives. It stands on the folder itself,
/// so that anyone who may read the folder can hold it: only for folders that are one user's alone. Where a file system
/// knows no such locks there is none. An error where another program doesn't let go in time.
class clsFolderLock {
public:
    enum class Wait { AWhile, NotAtAll };

    explicit clsFolderLock(const QString &folder, Wait wait = Wait::AWhile);
    ~clsFolderLock();
    clsFolderLock(const clsFolderLock &) = delete;
    clsFolderLock &operator=(const clsFolderLock &) = delete;

    /// False where the folder was deleted while this program waited for it, so that the lock is of no use.
    bool isOfWhatIsThere() const;

private:
    QByteArray m_folder;
    int m_descriptor;
};
