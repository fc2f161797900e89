// Access lists on Linux. Another system needs its own version of this file.

#include "base/mdAccessList.h"

#include "base/mdUninterrupted.h"

#include <QByteArray>

#include <sys/xattr.h>

bool mdHasAccessList(const QByteArray &path)
{
    return mdUninterrupted([&] { return ::getxattr(path.constData(), "system.posix_acl_access", nullptr, 0); }) > 0;
}
