#pragma once

#include <sys/stat.h>
#include <sys/types.h>

class QByteArray;

/// Who may read and write a file. Only files that are for POSIX systems alone include this.
struct clsFileRights {
    mode_t mode = S_IRUSR | S_IWUSR;
    gid_t group = gid_t(-1);

    /// Those of the file at a path, with its status.
    static clsFileRights of(const QByteArray &path, const struct stat &status);

    /// The group loses what not everybody has.
    void withoutGroup() { mode = (mode & ~mode_t(S_IRWXG)) | (mode & S_IRWXO) << 3; }
    /// Gives them to a new file. Another group than the file's own gets nothing by them. A file system without modes is
    /// no reason to fail: the file was born private.
    void giveTo(int descriptor) const;
};
