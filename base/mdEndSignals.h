#pragma once

#include <functional>
#include <memory>

/// While this object lives, calls the handler from the event loop when the system asks the program to end (on POSIX
/// systems SIGTERM, SIGHUP and SIGINT); its destructor restores the signals. Called once: further requests are ignored
/// while the program ends. The handler may delete this object. Without a running event loop nothing is called. For the
/// main thread only, one at a time.
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

/// Holds back the same requests while this object lives.
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

/// Makes a write beyond the file size limit (on POSIX systems SIGXFSZ) fail with an error, reported like a full disk.
/// By default the system would kill the program.
void MakeSizeLimitAnError();
