#include "wordexport/mdDocumentFile.h"

#include "shell/clsFileSystem.h"
#include "wordexport/mdDocumentError.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Runs a system call, again where a signal interrupted it.
template <class Call> auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Opens a new file.
int createFile(const QByteArray &path)
{
    return uninterrupted([&] { return ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
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
    clsDescriptor &operator=(const clsDescriptor &) = delete;

    int get() const { return m_descriptor; }
    /// A full disk may show only here, so that closing can fail like writing.
    bool close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        // After an interrupted close the descriptor is gone all the same, and must not be closed twice.
        return ::close(descriptor) == 0 || errno == EINTR;
    }

private:
    int m_descriptor;
};

[[noreturn]] void fail(int systemError)
{
    throw clsRunTimeError::fromSystem(systemError);
}

// A name that is free, beside the document and hidden. A leftover of an earlier crash is passed over.
int createSideFile(const QByteArray &document, QByteArray &sidePath)
{
    constexpr int Attempts = 100;
    const qsizetype folderEnd = document.lastIndexOf('/') + 1;
    for (int i = 0; i < Attempts; ++i) {
        sidePath = document.left(folderEnd) + ".~" + document.mid(folderEnd) + '.' + QByteArray::number(i);
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
        const ssize_t written
            = uninterrupted([&] { return ::write(descriptor, bytes.constData() + done, size_t(bytes.size() - done)); });
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

// The folder's entry is on the disk only when the folder is; a file system that can't do that is no failure.
void syncFolder(const QByteArray &document)
{
    const qsizetype slash = document.lastIndexOf('/');
    const QByteArray folder = slash < 0 ? QByteArray(".") : document.left(slash + 1);
    const clsDescriptor descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.get() >= 0)
        ::fsync(descriptor.get());
}

// The file that is meant: where the name is a link, the one that it leads to is replaced, not the link.
QByteArray fileItself(const QString &path)
{
    const QByteArray document = QFile::encodeName(path);
    struct stat status;
    if (document.isEmpty()) // its side file would come to lie in the current folder
        throw clsRunTimeError(clsRunTimeError::PathNotFound);
    if (::lstat(document.constData(), &status) != 0 || !S_ISLNK(status.st_mode))
        return document;
    if (::stat(document.constData(), &status) != 0) // it leads nowhere
        fail(errno);
    return QFile::encodeName(QFileInfo(path).canonicalFilePath());
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
    struct stat status;
    const bool exists = ::stat(document.constData(), &status) == 0;
    if (exists && !S_ISREG(status.st_mode))
        throw clsRunTimeError(clsRunTimeError::PathFileAccess);
    // Taking over the name would succeed on a write-protected document, since it asks the folder only.
    if (exists && ::access(document.constData(), W_OK) != 0)
        fail(errno);

    QByteArray sidePath;
    clsDescriptor side(createSideFile(document, sidePath));
    if (side.get() < 0)
        fail(errno == ENOENT ? ENOTDIR : errno); // it is the folder that was not found
    if (exists)
        (void)::fchmod(side.get(), status.st_mode & 07777); // a file system without modes is no reason to fail

    const bool written = writeAll(side.get(), bytes) && uninterrupted([&] { return ::fsync(side.get()); }) == 0
        && side.close() && ::rename(sidePath.constData(), document.constData()) == 0;
    if (!written) {
        const int systemError = errno;
        ::unlink(sidePath.constData());
        fail(systemError);
    }
    syncFolder(document);
}

void mdWriteWorkingFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray file = QFile::encodeName(path);
    if (::unlink(file.constData()) != 0 && errno != ENOENT)
        fail(errno);
    clsDescriptor descriptor(createFile(file));
    if (descriptor.get() < 0)
        fail(errno == ENOENT ? ENOTDIR : errno); // it is the folder that was not found
    if (writeAll(descriptor.get(), bytes) && descriptor.close())
        return;
    const int systemError = errno;
    ::unlink(file.constData());
    fail(systemError);
}
