#pragma once

#include <functional>
#include <memory>

/// Has the handler called, from the event loop, when the system asks the program to end (on POSIX systems SIGTERM,
/// SIGHUP and SIGINT), for as long as this object lives; then the signals are the system's again. It is called once:
/// whatever asks again while the program is ending is ignored. It may take this object away. Without a running event
/// loop nothing is called. To be used on the one thread only, one at a time.
class clsEndSignalScope {
public:
    explicit clsEndSignalScope(std::function<void()> handler);
    ~clsEndSignalScope();
    clsEndSignalScope(const clsEndSignalScope &) = delete;
    clsEndSignalScope &operator=(const clsEndSignalScope &) = delete;

private:
    class clsPipe;
    std::unique_ptr<clsPipe> m_pipe;
};

/// The same requests wait while this object lives.
class clsEndSignalsHeld {
public:
    clsEndSignalsHeld();
    ~clsEndSignalsHeld();
    clsEndSignalsHeld(const clsEndSignalsHeld &) = delete;
    clsEndSignalsHeld &operator=(const clsEndSignalsHeld &) = delete;

private:
    struct clsMask;
    std::unique_ptr<clsMask> m_before;
};

/// Has a write beyond the size that files may have here (on POSIX systems SIGXFSZ) fail with an error, which the user
/// is told, as on a full disk. Otherwise the system ends the program on the spot.
void MakeSizeLimitAnError();
