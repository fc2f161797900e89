// The file operations on POSIX systems. Another platform needs its own version of this file.

#include "base/clsFileSystem.h"

#include "base/clsRunTimeError.h"
#include "base/mdFileRights.h"
#include "base/mdRealPath.h"
#include "base/mdSyncFolder.h"
#include "base/mdUninterrupted.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// More than a hundred times the largest claim. Reading a larger file would exhaust the memory before the program found
// that it is not a claim.
constexpr qint64 LargestFile = 512 * 1024 * 1024;
constexpr qsizetype CopyBlock = 256 * 1024;

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;
// Opening a pipe must not block the program before it has checked the file's type.
constexpr int NeverBlock = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

clsFileFault asked(clsFileStep step, const QString &path)
{
    const auto &faultPoint = FileSystem().faultPoint;
    return faultPoint ? faultPoint(step, path) : clsFileFault();
}

[[noreturn]] void fail(int systemError, const QString &path)
{
    if (systemError == ENOENT && !FileSystem().FolderExists(QFileInfo(path).path()))
        throw clsRunTimeError(clsRunTimeError::PathNotFound);
    throw clsRunTimeError::fromSystem(systemError);
}

/// Runs one system call, after calling the test's fault point; raises an error if it fails.
template <class Call> auto step(clsFileStep which, const QString &path, Call call)
{
    if (const int fault = asked(which, path).systemError)
        fail(fault, path);
    const auto result = mdUninterrupted(call);
    if (result < 0)
        fail(errno, path);
    return result;
}

/// The path in the system's encoding. A null character would truncate it to the name of another file.
QByteArray systemPath(const QString &path)
{
    if (path.contains(QChar(u'\0')))
        throw clsRunTimeError(clsRunTimeError::BadFileName);
    return QFile::encodeName(path);
}

/// An open file, closed when it leaves scope at the latest.
class clsOpenFile {
public:
    clsOpenFile(clsFileStep which, const QString &path, int flags, mode_t mode = 0)
        : m_path(path)
        , m_descriptor(step(which, path, [native = systemPath(path), flags, mode] {
            return ::open(native.constData(), flags | NeverBlock, mode);
        }))
    { }
    ~clsOpenFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    clsOpenFile(const clsOpenFile &) = delete;
    clsOpenFile &operator=(const clsOpenFile &) = delete;

    struct stat status() const
    {
        struct stat status = {};
        step(clsFileStep::Inspect, m_path, [&] { return ::fstat(m_descriptor, &status); });
        return status;
    }
    struct stat regularStatus() const
    {
        const struct stat found = status();
        if (!S_ISREG(found.st_mode))
            throw clsRunTimeError(clsRunTimeError::PathFileAccess);
        return found;
    }
    /// Reads at most `size` bytes and returns how many; 0 at the end of the file.
    qint64 read(char *data, qint64 size) const
    {
        return transfer(clsFileStep::Read, size, [&](size_t part) { return ::read(m_descriptor, data, part); });
    }
    void write(const char *data, qint64 size) const
    {
        while (size > 0) {
            const qint64 written
                = transfer(clsFileStep::Write, size, [&](size_t part) { return ::write(m_descriptor, data, part); });
            data += written;
            size -= written;
        }
    }
    void truncate() const
    {
        step(clsFileStep::Truncate, m_path, [&] { return ::ftruncate(m_descriptor, 0); });
    }
    void sync() const
    {
        step(clsFileStep::SyncFile, m_path, [&] { return ::fsync(m_descriptor); });
    }
    void setRights(const clsFileRights &rights) const { rights.giveTo(m_descriptor); }
    /// Closes it. A network file system may report a failed write only now.
    void close()
    {
        const int descriptor = std::exchange(m_descriptor, -1);
        const int fault = asked(clsFileStep::Close, m_path).systemError;
        // After an interrupted close the descriptor is already released and must not be closed again.
        const int failure = ::close(descriptor) < 0 && errno != EINTR ? errno : 0;
        if (fault || failure)
            fail(fault ? fault : failure, m_path);
    }

private:
    template <class Call> qint64 transfer(clsFileStep which, qint64 size, Call call) const
    {
        const clsFileFault fault = asked(which, m_path);
        if (fault.systemError && fault.atMost <= 0)
            fail(fault.systemError, m_path);
        const size_t part = size_t(fault.atMost >= 0 ? qMin(fault.atMost, size) : size);
        const auto done = mdUninterrupted([&] { return call(part); });
        if (done < 0 || fault.systemError)
            fail(done < 0 ? errno : fault.systemError, m_path);
        return done;
    }

    QString m_path;
    int m_descriptor;
};

/// Flushes the folder entries of a file's folder to the disk.
void syncFolderOf(const QString &path)
{
    const QByteArray folder = mdRealFolder(path);
    const QString name = QFile::decodeName(folder);
    if (const int fault = asked(clsFileStep::SyncFolder, name).systemError)
        fail(fault, name);
    if (const int failure = mdSyncFolder(folder))
        fail(failure, name);
}

bool anythingAt(const QString &path)
{
    struct stat status = {};
    return mdUninterrupted([native = systemPath(path), &status] { return ::lstat(native.constData(), &status); }) == 0;
}

void copyContent(const clsOpenFile &source, const QString &to, const clsFileRights &rights)
{
    // Created empty and private; gets the original's permissions before its content.
    clsOpenFile target(clsFileStep::OpenToWrite, to, O_WRONLY | O_CREAT | O_EXCL, OwnerOnly);
    target.setRights(rights);
    QByteArray block(CopyBlock, Qt::Uninitialized);
    while (const qint64 size = source.read(block.data(), block.size()))
        target.write(block.constData(), size);
    target.sync();
    target.close();
    syncFolderOf(to);
}

} // namespace

bool clsFileSystem::FileExists(const QString &path) const
{
    const QByteArray native = systemPath(path);
    const int fault = asked(clsFileStep::Inspect, path).systemError;
    struct stat status = {};
    const bool told = !fault && mdUninterrupted([&] { return ::stat(native.constData(), &status); }) == 0;
    const int failure = fault ? fault : told ? 0 : errno;
    if (failure == ENOENT || failure == ENOTDIR)
        return false;
    if (failure)
        fail(failure, path);
    return !S_ISDIR(status.st_mode);
}

bool clsFileSystem::FolderExists(const QString &path) const
{
    struct stat status = {};
    return !path.isEmpty() && !path.contains(QChar(u'\0'))
        && mdUninterrupted([native = QFile::encodeName(path), &status] { return ::stat(native.constData(), &status); })
        == 0
        && S_ISDIR(status.st_mode);
}

bool clsFileSystem::NameIsTooLong(const QString &path) const
{
    struct stat status = {};
    return mdUninterrupted([native = systemPath(path), &status] { return ::lstat(native.constData(), &status); }) < 0
        && errno == ENAMETOOLONG;
}

QByteArray clsFileSystem::ReadFile(const QString &path) const
{
    clsOpenFile file(clsFileStep::OpenToRead, path, O_RDONLY);
    const qint64 size = file.regularStatus().st_size;
    if (size > LargestFile)
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
    QByteArray bytes(size, Qt::Uninitialized);
    for (qint64 have = 0; have < size;) {
        const qint64 part = file.read(bytes.data() + have, size - have);
        if (part == 0)
            throw clsRunTimeError(clsRunTimeError::InputPastEnd);
        have += part;
    }
    file.close();
    return bytes;
}

bool clsFileSystem::FileHolds(const QString &path, const QByteArray &bytes) const
{
    clsOpenFile file(clsFileStep::OpenToRead, path, O_RDONLY);
    if (file.regularStatus().st_size != bytes.size())
        return false;
    QByteArray block(qMin(CopyBlock, bytes.size()), Qt::Uninitialized);
    qint64 have = 0;
    while (have < bytes.size()) {
        const qint64 part = file.read(block.data(), qMin(block.size(), bytes.size() - have));
        if (part == 0 || std::memcmp(block.constData(), bytes.constData() + have, size_t(part)) != 0)
            return false;
        have += part;
    }
    file.close();
    return true;
}

void clsFileSystem::CopyFile(const QString &from, const QString &to) const
{
    clsOpenFile source(clsFileStep::OpenToRead, from, O_RDONLY);
    clsFileRights rights = clsFileRights::of(systemPath(from), source.regularStatus());
    rights.mode &= S_IRWXU | S_IRWXG | S_IRWXO;
    if (anythingAt(to))
        DeleteFile(to);
    try {
        copyContent(source, to, rights);
    } catch (...) {
        // Half a copy beside the complete original would mislead a user who has to choose between them.
        mdUninterrupted([native = systemPath(to)] { return ::unlink(native.constData()); });
        throw;
    }
}

void clsFileSystem::EmptyFile(const QString &path) const
{
    clsOpenFile file(clsFileStep::OpenToWrite, path, O_WRONLY | O_CREAT, OwnerOnly);
    file.regularStatus();
    file.truncate();
    file.close();
}

void clsFileSystem::WriteFile(const QString &path, const QByteArray &bytes) const
{
    clsOpenFile file(clsFileStep::OpenToWrite, path, O_WRONLY | O_CREAT, OwnerOnly);
    file.regularStatus();
    file.write(bytes.constData(), bytes.size());
    file.sync();
    file.close();
    syncFolderOf(path);
}

void clsFileSystem::CreateFolder(const QString &path) const
{
    const QByteArray native = systemPath(path);
    if (mdUninterrupted([&] { return ::mkdir(native.constData(), S_IRWXU); }) < 0 && errno != EEXIST)
        fail(errno, path);
}

void clsFileSystem::CreateFolders(const QString &path) const
{
    if (FolderExists(path))
        return;
    if (const QString parent = QFileInfo(path).path(); parent != path)
        CreateFolders(parent);
    CreateFolder(path);
}

void clsFileSystem::DeleteFile(const QString &path) const
{
    step(clsFileStep::Delete, path, [native = systemPath(path)] { return ::unlink(native.constData()); });
}

void clsFileSystem::RenameFile(const QString &from, const QString &to) const
{
    step(clsFileStep::Rename, to, [before = systemPath(from), after = systemPath(to)] {
        return ::rename(before.constData(), after.constData());
    });
    syncFolderOf(to);
}

clsFileSystem &FileSystem()
{
    // Tests make operations fail at its fault point. One for each thread, because a background operation must not call
    // a fault point while it is being set.
    static thread_local clsFileSystem fileSystem;
    return fileSystem;
}
