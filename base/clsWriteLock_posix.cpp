#include "base/clsWriteLock.h"

#include "base/mdAccessList.h"
#include "base/mdLockTimes.h"
#include "base/mdRealPath.h"
#include "base/mdUninterrupted.h"

#include <QString>

#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;
constexpr mode_t Group = S_IRGRP | S_IWGRP;
constexpr mode_t Others = S_IROTH | S_IWOTH;

QByteArray folderOfFile(const QByteArray &file)
{
    return file.left(file.lastIndexOf('/') + 1);
}

QByteArray lockFileFor(const QString &path)
{
    return mdRealFolder(path) + "/.velmor-zr3.lock";
}

/// Lets exactly the users with write access to the folder open a new lock file.
void share(int descriptor, const QByteArray &folder)
{
    struct stat own = {}, around = {};
    if (mdUninterrupted([&] { return ::stat(folder.constData(), &around); }) < 0
        || mdUninterrupted([&] { return ::fstat(descriptor, &own); }) < 0)
        return;
    mode_t mode = OwnerOnly;
    if ((around.st_mode & S_IWGRP) && !mdHasAccessList(folder) && (own.st_gid == around.st_gid || mdUninterrupted([&] {
            return ::fchown(descriptor, uid_t(-1), around.st_gid);
        }) == 0))
        mode |= Group;
    if (around.st_mode & S_IWOTH)
        mode |= Others;
    // If it fails, or the file system has no modes, the others wait until the file is deleted.
    if (mode != OwnerOnly)
        (void)mdUninterrupted([&] { return ::fchmod(descriptor, mode); });
}

bool isBusy(int error)
{
    return error == EWOULDBLOCK || error == EINTR;
}

bool isWithoutLocks(int error)
{
    return error == ENOLCK || error == ENOSYS || error == EOPNOTSUPP || error == EINVAL;
}

/// The holder of the turn, as far as other programs can see.
struct clsHolder {
    explicit clsHolder(const QByteArray &file)
    {
        if (mdUninterrupted([&] { return ::lstat(file.constData(), &status); }) < 0)
            status = {};
    }
    bool operator==(const clsHolder &other) const
    {
        // The time is compared too, because the system reuses the inode numbers of deleted files.
        return status.st_dev == other.status.st_dev && status.st_ino == other.status.st_ino
            && status.st_ctim.tv_sec == other.status.st_ctim.tv_sec
            && status.st_ctim.tv_nsec == other.status.st_ctim.tv_nsec;
    }

    struct stat status = {};
};

} // namespace

clsWriteLock::clsWriteLock(const QString &path)
    : m_file(lockFileFor(path))
{
    wait();
}

clsWriteLock::~clsWriteLock()
{
    if (m_descriptor < 0)
        return;
    // Deleted while locked: a program that gets the lock of a deleted file notices that and tries again.
    if (isThere())
        (void)mdUninterrupted([&] { return ::unlink(m_file.constData()); });
    ::close(m_descriptor);
}

void clsWriteLock::wait()
{
    using clock = std::chrono::steady_clock;
    constexpr int MostHolders = 6;
    const auto end = clock::now() + MostHolders * LongestWaitForLock;
    auto until = clock::now() + LongestWaitForLock;
    clsHolder holder(m_file);
    Result result;
    while ((result = tryToTake()) == Result::Busy) {
        const clsHolder now(m_file);
        if (!(now == holder)) {
            // Another program has taken a turn, so the queue is moving.
            holder = now;
            until = clock::now() + LongestWaitForLock;
        }
        if (clock::now() >= until || clock::now() >= end) {
            m_doubtful = true;
            if (clock::now() >= end || mdUninterrupted([&] { return ::unlink(m_file.constData()); }) < 0)
                return;
        }
        std::this_thread::sleep_for(BetweenTriesForLock);
    }
    if (result == Result::Impossible)
        m_doubtful = true;
}

clsWriteLock::Result clsWriteLock::tryToTake()
{
    m_descriptor = mdUninterrupted([&] { return ::open(m_file.constData(), Flags); });
    if (m_descriptor < 0)
        create();
    if (m_descriptor < 0)
        return errno == EEXIST ? Result::Busy : Result::Impossible;
    const int error = ::flock(m_descriptor, LOCK_EX | LOCK_NB) < 0 ? errno : 0;
    if (!error && isThere())
        return Result::Taken;
    ::close(m_descriptor);
    m_descriptor = -1;
    if (!error || isBusy(error))
        return Result::Busy;
    (void)mdUninterrupted([&] { return ::unlink(m_file.constData()); });
    return isWithoutLocks(error) ? Result::Unknown : Result::Impossible;
}

void clsWriteLock::create()
{
    m_descriptor = mdUninterrupted([&] { return ::open(m_file.constData(), Flags | O_CREAT | O_EXCL, OwnerOnly); });
    if (m_descriptor >= 0)
        share(m_descriptor, folderOfFile(m_file));
}

bool clsWriteLock::isThere() const
{
    struct stat locked = {}, there = {};
    if (mdUninterrupted([&] { return ::fstat(m_descriptor, &locked); }) < 0)
        return true;
    if (mdUninterrupted([&] { return ::lstat(m_file.constData(), &there); }) < 0)
        return errno != ENOENT && errno != ENOTDIR;
    return locked.st_dev == there.st_dev && locked.st_ino == there.st_ino;
}

bool clsWriteLock::isLost() const
{
    return m_descriptor >= 0 && !isThere();
}

bool clsWriteLock::isTaken(const QString &path)
{
    struct stat status = {};
    return mdUninterrupted([file = lockFileFor(path), &status] { return ::lstat(file.constData(), &status); }) == 0;
}
