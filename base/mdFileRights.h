#pragma once

#include <sys/stat.h>
#include <sys/types.h>

class QByteArray;

/// The permissions of a file. Only files for POSIX systems include this.
struct clsFileRights {
    mode_t mode = S_IRUSR | S_IWUSR;
    gid_t group = gid_t(-1);

    /// The permissions of the file at a path, given its status.
    static clsFileRights of(const QByteArray &path, const struct stat &status);

    /// Replaces the group's permissions with those of others.
    void withoutGroup() { mode = (mode & ~mode_t(S_IRWXG)) | (mode & S_IRWXO) << 3; }
    /// Applies them to a new file. If the group can't be set, the file's group gets only the permissions of others. A
    /// failure on a file system without modes is ignored: the file was created private.
    void giveTo(int descriptor) const;
};
