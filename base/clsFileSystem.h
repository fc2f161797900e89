#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// The single steps of the file operations, in the order in which a guarded overwrite meets them.
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

/// What becomes of a step: nothing out of the ordinary as long as neither field is set.
struct clsFileFault {
    int systemError = 0; ///< an errno value; the step fails with it
    qint64 atMost = -1; ///< bytes that this one read or write lets pass, before it fails where `systemError` is set
};

/// The file operations of the core, and the one place that asks the operating system for them. An operation that fails
/// raises a clsRunTimeError. Symbolic links are followed and kept.
class clsFileSystem {
public:
    /// True for a file of any kind that is not a folder. An error where that can't be told: taking "can't tell" for
    /// "no" would lead an overwrite to spare the copy that guards it.
    bool FileExists(const QString &path) const;
    /// True for a folder that can be reached; never an error.
    bool FolderExists(const QString &path) const;
    /// True where no file can have the name, since it has more characters than a name may have here.
    bool NameIsTooLong(const QString &path) const;

    /// The whole content. Only a regular file is read: a pipe or a device could block for ever or never end.
    QByteArray ReadFile(const QString &path) const;
    /// Whether a file holds these bytes and no others, without a second copy of them in memory.
    bool FileHolds(const QString &path, const QByteArray &bytes) const;
    /// Copies a file with its permissions, of which another group than the file's gets nothing. A file that is already
    /// at the target is taken away first and not written through, since it could be a link to the very file that is
    /// copied. The copy is on the disk, with its entry in the folder, when this returns; a copy that fails leaves
    /// nothing at the target.
    void CopyFile(const QString &from, const QString &to) const;
    /// Empties a file or creates it, readable by its owner only. An existing file keeps its permissions.
    void EmptyFile(const QString &path) const;
    /// Writes a file from its start; the bytes, and the file's entry in its folder, are on the disk when this returns.
    void WriteFile(const QString &path, const QByteArray &bytes) const;
    void DeleteFile(const QString &path) const;
    /// Gives a file another name in its folder, and takes away what bore it before: at every moment one of the two is
    /// there, whole. The name is on the disk when this returns.
    void RenameFile(const QString &from, const QString &to) const;
    /// Makes a folder that only its owner can look into. One that is there already stays as it is.
    void CreateFolder(const QString &path) const;
    /// The same, with those that are missing on the way to it.
    void CreateFolders(const QString &path) const;

    /// Asked before each step; for tests, which let steps fail here or end the process between two of them.
    std::function<clsFileFault(clsFileStep step, const QString &path)> faultPoint;
};

/// The file system, with the fault point of this thread.
clsFileSystem &FileSystem();
