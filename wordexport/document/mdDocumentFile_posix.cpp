#include "wordexport/document/mdDocumentFile.h"

#include "base/clsFileSystem.h"
#include "base/mdFileRights.h"
#include "base/mdRealPath.h"
#include "base/mdShortenedName.h"
#include "base/mdSyncFolder.h"
#include "base/mdUninterrupted.h"
#include "wordexport/document/mdDocumentError.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;
constexpr mode_t ReadAndWrite = 0666;

/// Creates a file. Claims are confidential: their files are closed to others from the start.
int createFile(const QByteArray &path)
{
    return mdUninterrupted(
        [&] { return ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, OwnerOnly); });
}

/// Opens a file to be overwritten from its start: only one that belongs to this user, has no second name, and is no
/// longer than the new content. It is not truncated, which would make some file systems flush it to the disk at once.
int openForOverwriting(const QByteArray &path, qsizetype size)
{
    const int descriptor
        = mdUninterrupted([&] { return ::open(path.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); });
    struct stat status;
    if (descriptor < 0
        || (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink == 1
            && status.st_uid == ::geteuid() && (status.st_mode & 07777) == OwnerOnly && status.st_size <= size))
        return descriptor;
    ::close(descriptor);
    return -1;
}

int removeFile(const QByteArray &path)
{
    return mdUninterrupted([&] { return ::unlink(path.constData()); });
}

int renameFile(const QByteArray &from, const QByteArray &to)
{
    return mdUninterrupted([&] { return ::rename(from.constData(), to.constData()); });
}

int statusOf(const QByteArray &path, struct stat &status)
{
    return mdUninterrupted([&] { return ::stat(path.constData(), &status); });
}

class clsDescriptor {
public:
    explicit clsDescriptor(int descriptor)
        : m_descriptor(descriptor)
    { }
    ~clsDescriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    clsDescriptor(const clsDescriptor &) = delete;
    clsDescriptor &operator=(clsDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    int get() const { return m_descriptor; }
    /// A full disk may show only now, so closing can fail like writing.
    bool close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        // After an interrupted close the descriptor is already released and must not be closed again.
        return ::close(descriptor) == 0 || errno == EINTR;
    }

private:
    int m_descriptor;
};

[[noreturn]] void fail(int systemError)
{
    throw clsRunTimeError::fromSystem(systemError);
}

/// The permissions of a claim's file, for its document.
clsFileRights rightsOfClaim(const QString &claimFile)
{
    const QByteArray path = QFile::encodeName(claimFile);
    struct stat status;
    if (path.isEmpty() || statusOf(path, status) != 0)
        return {};
    clsFileRights rights = clsFileRights::of(path, status);
    // A write-protected claim must not make its document write-protected.
    rights.mode = (rights.mode & ReadAndWrite) | OwnerOnly;
    return rights;
}

// A free hidden name beside the document. Skips leftovers of earlier crashes.
int createSideFile(const QByteArray &document, QByteArray &sidePath)
{
    constexpr int Attempts = 100;
    constexpr qsizetype LongestName = 200; // bytes: names are limited to 255, and some characters are added
    const qsizetype folderEnd = document.lastIndexOf('/') + 1;
    const QByteArray name = QFile::encodeName(mdShortenedName(QFile::decodeName(document.mid(folderEnd)), LongestName));
    for (int i = 0; i < Attempts; ++i) {
        sidePath = document.left(folderEnd) + ".~" + name + '.' + QByteArray::number(i);
        const int descriptor = createFile(sidePath);
        if (descriptor >= 0 || errno != EEXIST)
            return descriptor;
    }
    return -1;
}

bool writeAll(int descriptor, const QByteArray &bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written = mdUninterrupted(
            [&] { return ::write(descriptor, bytes.constData() + done, size_t(bytes.size() - done)); });
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

/// Flushes the document's folder entry to the disk. Failures are ignored: the document already has its name, and an
/// error would be reported for a successful export.
void syncFolderOf(const QByteArray &document)
{
    const qsizetype slash = document.lastIndexOf('/');
    (void)mdSyncFolder(slash < 0 ? QByteArray(".") : document.left(slash + 1));
}

/// The file to replace: for a link, its target.
QByteArray fileItself(const QString &path)
{
    const QByteArray document = QFile::encodeName(path);
    struct stat status;
    if (document.isEmpty()) // its side file would be created in the current folder
        throw clsRunTimeError(clsRunTimeError::PathNotFound);
    if (mdUninterrupted([&] { return ::lstat(document.constData(), &status); }) != 0 || !S_ISLNK(status.st_mode))
        return document;
    if (statusOf(document, status) != 0) // a dangling link
        fail(errno);
    return mdRealPath(document);
}

/// Whether there is a document to be replaced, and its status; an error if it is write-protected. Renaming would
/// succeed even then, since that needs only write access to the folder.
bool mayBeReplaced(const QByteArray &document, struct stat &status)
{
    if (statusOf(document, status) != 0)
        return false;
    if (!S_ISREG(status.st_mode))
        throw clsRunTimeError(clsRunTimeError::PathFileAccess);
    if (mdUninterrupted([&] { return ::access(document.constData(), W_OK); }) != 0)
        fail(errno);
    return true;
}

void writeBesideAndRename(const QByteArray &document, const QByteArray &bytes, const clsFileRights &rights)
{
    QByteArray sidePath;
    clsDescriptor side(createSideFile(document, sidePath));
    if (side.get() < 0)
        fail(errno == ENOENT ? ENOTDIR : errno); // the missing item is the folder
    rights.giveTo(side.get());
    const bool written = writeAll(side.get(), bytes) && mdUninterrupted([&] { return ::fsync(side.get()); }) == 0
        && side.close() && renameFile(sidePath, document) == 0;
    if (!written) {
        const int systemError = errno;
        removeFile(sidePath);
        fail(systemError);
    }
    syncFolderOf(document);
}

/// Sets the permissions of a file by its path.
void giveTo(const QByteArray &path, const clsFileRights &rights)
{
    const clsDescriptor file(
        mdUninterrupted([&] { return ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC); }));
    if (file.get() < 0)
        fail(errno);
    rights.giveTo(file.get());
}

} // namespace

QByteArray mdReadDocumentFile(const QString &path, qint64 limit)
{
    const QFileInfo file(path);
    if (file.isFile() && file.size() > limit)
        throw mdDocumentTooLarge(path);
    return FileSystem().ReadFile(path);
}

void mdWriteDocumentFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray document = fileItself(path);
    struct stat older;
    writeBesideAndRename(
        document, bytes, mayBeReplaced(document, older) ? clsFileRights::of(document, older) : clsFileRights());
}

void mdPutDocumentInPlace(const QString &written, const QString &finished, const QString &claimFile, qint64 limit)
{
    const QByteArray from = QFile::encodeName(written);
    const QByteArray named = QFile::encodeName(finished);
    const clsFileRights rights = rightsOfClaim(claimFile);
    struct stat older;
    const QByteArray document = mayBeReplaced(named, older) ? fileItself(finished) : named;
    giveTo(from, rights);
    if (renameFile(from, document) == 0)
        syncFolderOf(document);
    else if (errno == EXDEV) // a link may lead to another file system, where renaming is impossible
        writeBesideAndRename(document, mdReadDocumentFile(written, limit), rights);
    else
        fail(errno);
}

void mdWriteWorkingFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray file = QFile::encodeName(path);
    clsDescriptor descriptor(openForOverwriting(file, bytes.size()));
    if (descriptor.get() < 0) {
        if (removeFile(file) != 0 && errno != ENOENT)
            fail(errno);
        descriptor = clsDescriptor(createFile(file));
    }
    if (descriptor.get() < 0)
        fail(errno == ENOENT ? ENOTDIR : errno); // the missing item is the folder
    if (writeAll(descriptor.get(), bytes) && descriptor.close())
        return;
    const int systemError = errno;
    removeFile(file);
    fail(systemError);
}
