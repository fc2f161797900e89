// File stamps on POSIX systems. Another platform needs its own version of this file.

#include "base/mdFileStamp.h"

#include "base/mdUninterrupted.h"

#include <QFile>

#include <sys/stat.h>

namespace {

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

} // namespace

std::optional<clsFileStamp> FileStamp(const QString &path)
{
    struct stat status = {};
    if (path.isEmpty() || path.contains(QChar(u'\0')) || mdUninterrupted([native = QFile::encodeName(path), &status] {
            return ::stat(native.constData(), &status);
        }) < 0
        || !S_ISREG(status.st_mode))
        return {};
    return clsFileStamp {
        status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}
