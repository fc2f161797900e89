#include "base/clsFolderLock.h"

#include "base/clsRunTimeError.h"
#include "base/mdLockTimes.h"
#include "base/mdUninterrupted.h"

#include <QFile>

#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

clsFolderLock::clsFolderLock(const QString &folder, Wait wait)
    : m_folder(QFile::encodeName(folder))
    , m_descriptor(mdUninterrupted(
          [this] { return ::open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); }))
{
    const auto until = std::chrono::steady_clock::now() + LongestWaitForLock;
    while (
        m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) < 0 && (errno == EWOULDBLOCK || errno == EINTR)) {
        if (wait == Wait::NotAtAll || std::chrono::steady_clock::now() >= until) {
            ::close(m_descriptor);
            throw clsRunTimeError(clsRunTimeError::PermissionDenied);
        }
        std::this_thread::sleep_for(BetweenTriesForLock);
    }
}

clsFolderLock::~clsFolderLock()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool clsFolderLock::isOfWhatIsThere() const
{
    struct stat locked = {}, there = {};
    return m_descriptor < 0 || mdUninterrupted([&] { return ::fstat(m_descriptor, &locked); }) < 0
        || (mdUninterrupted([&] { return ::stat(m_folder.constData(), &there); }) == 0 && locked.st_dev == there.st_dev
            && locked.st_ino == there.st_ino);
}
