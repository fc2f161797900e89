// File permissions on POSIX systems. Another platform needs its own version of this file.

#include "base/mdFileRights.h"

#include "base/mdAccessList.h"
#include "base/mdUninterrupted.h"

#include <QByteArray>

#include <unistd.h>

clsFileRights clsFileRights::of(const QByteArray &path, const struct stat &status)
{
    clsFileRights rights {status.st_mode & 07777, status.st_gid};
    if (mdHasAccessList(path))
        rights.withoutGroup();
    return rights;
}

void clsFileRights::giveTo(int descriptor) const
{
    struct stat own = {};
    if (mdUninterrupted([&] { return ::fstat(descriptor, &own); }) != 0)
        return;
    clsFileRights given = *this;
    const auto isTaken = [&] { return mdUninterrupted([&] { return ::fchown(descriptor, uid_t(-1), group); }) == 0; };
    if (own.st_gid != group && (group == gid_t(-1) || !isTaken()))
        given.withoutGroup();
    (void)mdUninterrupted([&] { return ::fchmod(descriptor, given.mode); });
}
