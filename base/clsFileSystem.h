#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// The steps of the file operations, in the order of a guarded overwrite.
enum class clsFileStep {
    Inspect,
    OpenToRead,
    Read,
    OpenToWrite,
    Truncate,
    Write,
    SyncFile,
    SyncFolder,
    Close,
    Delete,
    Rename
};

/// The fault to inject into a step; none while both fields are unset.
struct clsFileFault {
    int systemError = 0; ///< an errno value; the step fails with it
    qint64 atMost = -1; ///< bytes that this read or write transfers, before it fails if `systemError` is set
};

/// All file operations of the core; only this class calls the operating system for them. A failed operation raises
/// clsRunTimeError. Symbolic links are followed and kept.
class clsFileSystem {
public:
    /// True for any file that is not a folder. Raises an error if that can't be determined: with "no" as the answer, an
    /// overwrite would skip its backup copy.
    bool FileExists(const QString &path) const;
    /// True for a folder that can be reached; never raises an error.
    bool FolderExists(const QString &path) const;
    /// True if the name has more characters than this file system allows.
    bool NameIsTooLong(const QString &path) const;

    /// The whole content. Reads only regular files: a pipe or a device could block or never end.
    QByteArray ReadFile(const QString &path) const;
    /// Whether the file's content is exactly these bytes, without holding a second copy in memory.
    bool FileHolds(const QString &path, const QByteArray &bytes) const;
    /// Copies a file with its permissions and, if possible, its group; otherwise the copy's group gets only the
    /// permissions of others. An existing file at the target is deleted first and not written through, since it could
    /// be a link to the source. On return the copy and its folder entry are on the disk; a failed copy leaves nothing
    /// at the target.
    void CopyFile(const QString &from, const QString &to) const;
    /// Empties a file, or creates it readable by its owner only. An existing file keeps its permissions.
    void EmptyFile(const QString &path) const;
    /// Writes a file from its start; on return the bytes and the folder entry are on the disk.
    void WriteFile(const QString &path, const QByteArray &bytes) const;
    void DeleteFile(const QString &path) const;
    /// Renames a file within its folder, replacing any file of that name: at every moment one of the two exists,
    /// complete. On return the new name is on the disk.
    void RenameFile(const QString &from, const QString &to) const;
    /// Creates a folder that only its owner can open. An existing one is not changed.
    void CreateFolder(const QString &path) const;
    /// The same, with any missing parent folders.
    void CreateFolders(const QString &path) const;

    /// Called before each step. Tests use it to make steps fail or to end the process between two steps.
    std::function<clsFileFault(clsFileStep step, const QString &path)> faultPoint;
};

/// The file system, with the fault point of this thread.
clsFileSystem &FileSystem();
