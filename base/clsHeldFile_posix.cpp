// Held files on POSIX systems. Another platform needs its own version of this file.

#include "base/clsHeldFile.h"

#include "base/mdUninterrupted.h"

#include <QFile>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Flags = O_RDWR | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;

// A program that checks the lock holds it for a moment.
constexpr int Tries = 20;
constexpr std::chrono::milliseconds BetweenTries(5);

bool isBusy(int error)
{
    return error == EWOULDBLOCK || error == EACCES;
}

} // namespace

clsHeldFile::clsHeldFile(const QString &path)
    : m_descriptor(mdUninterrupted(
        [native = QFile::encodeName(path)] { return ::open(native.constData(), Flags | O_CREAT, OwnerOnly); }))
{
    for (int left = Tries; m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) < 0; --left) {
        if (!isBusy(errno) && errno != EINTR)
            return;
        if (left == 0) {
            ::close(m_descriptor);
            m_descriptor = -1;
            return;
        }
        std::this_thread::sleep_for(BetweenTries);
    }
}

clsHeldFile::~clsHeldFile()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool clsHeldFile::processRuns(qint64 process)
{
    return process > 0 && (::kill(pid_t(process), 0) == 0 || errno == EPERM);
}

clsHeldFile::clsState clsHeldFile::of(const QString &path)
{
    const int descriptor
        = mdUninterrupted([native = QFile::encodeName(path)] { return ::open(native.constData(), Flags); });
    if (descriptor < 0)
        return errno == ENOENT ? clsState::Free : clsState::Unknown;
    // A shared lock, so that two programs that check at once don't take each other for the holder.
    const int error = mdUninterrupted([descriptor] { return ::flock(descriptor, LOCK_SH | LOCK_NB); }) < 0 ? errno : 0;
    ::close(descriptor);
    return error == 0 ? clsState::Free : isBusy(error) ? clsState::Held : clsState::Unknown;
}
