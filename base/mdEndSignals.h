#pragma once

#include <functional>

/// Has the handler called, from the event loop, when the system asks the program to end (on POSIX systems SIGTERM and
/// SIGHUP). It is called once: whatever asks again while the program is ending is ignored. An empty handler leaves the
/// signals to the system again.
/// Without a running event loop nothing is called. To be used on the one thread only.
void SetEndSignalHandler(std::function<void()> handler);

/// Has a write beyond the size that files may have here (on POSIX systems SIGXFSZ) fail with an error, which the user
/// is told, as on a full disk. Otherwise the system ends the program on the spot.
void MakeSizeLimitAnError();
