// Requests to end on POSIX systems. Another platform needs its own version of this file.

#include "base/mdEndSignals.h"

#include "base/clsRunTimeError.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int EndSignals[] = {SIGTERM, SIGHUP, SIGINT};

// All that the signal handler may access; the system passes it only the signal.
std::atomic<int> pipeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void passOn(int)
{
    const int before = errno;
    // A full pipe already holds a request.
    [[maybe_unused]] const auto written = ::write(pipeEnd, "", 1);
    errno = before;
}

} // namespace

/// A pipe that carries a signal into the event loop: writing is all that a signal handler can safely do.
class clsEndSignalScope::clsPipe {
public:
    explicit clsPipe(std::function<void()> handler)
        : m_handler(std::move(handler))
    {
        if (::pipe2(m_pipe, O_NONBLOCK | O_CLOEXEC) != 0)
            throw clsRunTimeError::fromSystem(errno);
        pipeEnd = m_pipe[1];
        m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { arrived(); });
        for (size_t i = 0; i < std::size(EndSignals); ++i)
            listen(EndSignals[i], m_before[i]);
    }
    ~clsPipe()
    {
        for (size_t i = 0; i < std::size(EndSignals); ++i)
            ::sigaction(EndSignals[i], &m_before[i], nullptr);
        m_notifier.reset();
        pipeEnd = -1;
        ::close(m_pipe[0]);
        ::close(m_pipe[1]);
    }
    clsPipe(const clsPipe &) = delete;
    clsPipe &operator=(const clsPipe &) = delete;

private:
    static void listen(int signal, struct sigaction &before)
    {
        ::sigaction(signal, nullptr, &before);
        // A program started to survive the end of its terminal keeps doing so.
        if (before.sa_handler == SIG_IGN)
            return;
        struct sigaction action = {};
        action.sa_handler = passOn;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        ::sigaction(signal, &action, nullptr);
    }
    void arrived()
    {
        char rest[64];
        while (::read(m_pipe[0], rest, sizeof rest) > 0) { }
        // Cleared before the call: the handler may run a nested event loop and may delete this object.
        const std::function<void()> handler = std::exchange(m_handler, nullptr);
        if (handler)
            handler();
    }

    std::function<void()> m_handler;
    int m_pipe[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    struct sigaction m_before[std::size(EndSignals)] = {};
};

clsEndSignalScope::clsEndSignalScope(std::function<void()> handler)
    : m_pipe(std::make_unique<clsPipe>(std::move(handler)))
{ }

clsEndSignalScope::~clsEndSignalScope() = default;

struct clsEndSignalsHeld::clsMask {
    sigset_t mask;
};

clsEndSignalsHeld::clsEndSignalsHeld()
    : m_before(std::make_unique<clsMask>())
{
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : EndSignals)
        sigaddset(&held, signal);
    ::sigprocmask(SIG_BLOCK, &held, &m_before->mask);
}

clsEndSignalsHeld::~clsEndSignalsHeld()
{
    ::sigprocmask(SIG_SETMASK, &m_before->mask, nullptr);
}

void MakeSizeLimitAnError()
{
    std::signal(SIGXFSZ, SIG_IGN);
}
