// Requests to end as a descriptor, for Linux. Another platform needs its own version of this file.

#include "base/clsEndRequests.h"

#include "base/mdUninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <climits>

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

constexpr int EndSignals[] = {SIGINT, SIGTERM, SIGHUP};

/// The program may have been started so that it survives the end of its terminal.
bool isIgnored(int signal)
{
    struct sigaction action = {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

/// A pipe that polls as writable takes this much without blocking.
constexpr qsizetype PieceOfOutput = PIPE_BUF;

} // namespace

clsEndRequests::clsEndRequests()
{
    sigset_t asked;
    sigemptyset(&asked);
    for (const int signal : EndSignals)
        if (!isIgnored(signal))
            sigaddset(&asked, signal);
    ::sigprocmask(SIG_BLOCK, &asked, &m_before);
    m_descriptor = ::signalfd(-1, &asked, SFD_CLOEXEC | SFD_NONBLOCK);
}

clsEndRequests::~clsEndRequests()
{
    ::close(m_descriptor);
    ::sigprocmask(SIG_SETMASK, &m_before, nullptr);
}

void clsEndRequests::leaveToChild() const
{
    ::close(m_descriptor);
    for (const int signal : {SIGINT, SIGHUP})
        std::signal(signal, SIG_IGN);
    ::sigprocmask(SIG_SETMASK, &m_before, nullptr);
}

int clsEndRequests::signal()
{
    signalfd_siginfo info = {};
    if (m_signal == 0 && ::read(m_descriptor, &info, sizeof info) == sizeof info)
        m_signal = int(info.ssi_signo);
    return m_signal;
}

bool clsEndRequests::write(int descriptor, const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        pollfd awaited[] = {{m_descriptor, POLLIN, 0}, {descriptor, POLLOUT, 0}};
        if (::poll(awaited, 2, -1) < 0 && errno != EINTR)
            return false;
        if (signal())
            return false;
        if (!awaited[1].revents)
            continue;
        const qsizetype size = std::min(bytes.size() - done, PieceOfOutput);
        const ssize_t count
            = mdUninterrupted([&] { return ::write(descriptor, bytes.constData() + done, size_t(size)); });
        if (count < 0 && errno == EPIPE)
            m_signal = SIGPIPE;
        if (count < 0 && errno != EAGAIN)
            return false;
        done += std::max<ssize_t>(count, 0);
    }
    return true;
}

void clsEndRequests::endBySignal()
{
    std::signal(m_signal, SIG_DFL);
    sigset_t own;
    sigemptyset(&own);
    sigaddset(&own, m_signal);
    ::sigprocmask(SIG_UNBLOCK, &own, nullptr);
    (void)::raise(m_signal);
    constexpr int StatusOfSignal = 128; // as shells count
    ::_exit(StatusOfSignal + m_signal);
}
