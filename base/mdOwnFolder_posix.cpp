// Owners and links on POSIX systems. Another platform needs its own version of this file.

#include "base/mdOwnFolder.h"

#include "base/mdUninterrupted.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t OwnerOnly = S_IRWXU;
constexpr mode_t MadeWith = S_IRWXU | S_IRWXG | S_IRWXO | S_ISVTX; // the group bit is inherited from the parent
constexpr int MostLinks = 40; // the system's own limit

bool isOwn(uid_t owner)
{
    return owner == ::geteuid();
}

QString joined(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

/// Follows the path as the system would, one name at a time. `links` is the number of links it may still follow.
bool onlyOverTrustedLinks(const QString &path, int links)
{
    QString here = QStringLiteral("/");
    const QStringList names = path.split(u'/', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i] == QLatin1String(".."))
            here = here.left(qMax(qsizetype(1), here.lastIndexOf(u'/')));
        if (names[i] == QLatin1String(".") || names[i] == QLatin1String(".."))
            continue;
        const QString next = joined(here, names[i]);
        const QByteArray native = QFile::encodeName(next);
        struct stat status = {};
        if (mdUninterrupted([&] { return ::lstat(native.constData(), &status); }) != 0 || !S_ISLNK(status.st_mode)) {
            here = next;
            continue;
        }
        const bool isLast = i + 1 == names.size();
        if (!isOwn(status.st_uid) && (isLast || status.st_uid != 0))
            return false;
        char target[4096];
        const ssize_t size = mdUninterrupted([&] { return ::readlink(native.constData(), target, sizeof target); });
        if (size <= 0 || links == 0)
            return false;
        const QString to = QFile::decodeName(QByteArray(target, size));
        const QStringList rest = names.mid(i + 1);
        const QString further = to.startsWith(u'/') ? to : joined(here, to);
        return onlyOverTrustedLinks(joined(further, rest.join(u'/')), links - 1);
    }
    return true;
}

} // namespace

bool MakeOwnFolder(const QString &path)
{
    const QByteArray native = QFile::encodeName(path);
    (void)mdUninterrupted([&] { return ::mkdir(native.constData(), OwnerOnly); });
    const int folder
        = mdUninterrupted([&] { return ::open(native.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
    if (folder < 0)
        return false;
    struct stat status = {};
    const bool own = mdUninterrupted([&] { return ::fstat(folder, &status); }) == 0 && isOwn(status.st_uid);
    // An existing folder may be open to others. A file system without permissions refuses this.
    if (own && (status.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        (void)mdUninterrupted([&] { return ::fchmod(folder, OwnerOnly); });
    ::close(folder);
    return own;
}

bool IsOwnFolder(const QString &path)
{
    struct stat status = {};
    return mdUninterrupted([native = QFile::encodeName(path), &status] { return ::lstat(native.constData(), &status); })
        == 0
        && S_ISDIR(status.st_mode) && isOwn(status.st_uid);
}

void MakeFolderLikeItsParent(const QString &path)
{
    const QByteArray native = QFile::encodeName(path);
    const QByteArray around = QFile::encodeName(QFileInfo(path).path());
    struct stat parent = {};
    if (mdUninterrupted([&] { return ::stat(around.constData(), &parent); }) != 0)
        return;
    // Not changed afterwards: by then another user could have replaced the folder.
    const mode_t before = ::umask(0);
    (void)mdUninterrupted([&] { return ::mkdir(native.constData(), parent.st_mode & MadeWith); });
    ::umask(before);
}

bool LeadsOverForeignLink(const QString &path)
{
    return !onlyOverTrustedLinks(QDir::current().absoluteFilePath(path), MostLinks);
}

QString OwnName()
{
    const passwd *entry = ::getpwuid(::geteuid());
    const QString known = entry ? QFile::decodeName(entry->pw_name) : QString();
    return known.isEmpty() || known.contains(u'/') || known.startsWith(u'.') ? QString::number(::geteuid()) : known;
}
