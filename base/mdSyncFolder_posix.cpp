#include "base/mdSyncFolder.h"

#include "base/mdUninterrupted.h"

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

int mdSyncFolder(const QByteArray &folder)
{
    const int descriptor
        = mdUninterrupted([&] { return ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (descriptor < 0)
        return 0;
    const int failure = mdUninterrupted([&] { return ::fsync(descriptor); }) < 0 ? errno : 0;
    ::close(descriptor);
    return failure == EINVAL || failure == ENOTSUP || failure == EROFS ? 0 : failure;
}
