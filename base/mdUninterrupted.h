#pragma once

#include <cerrno>

/// Runs a system call, again if a signal interrupted it. On network mounts signals can interrupt calls that otherwise
/// never are, such as `stat` and `unlink`.
template <class Call> auto mdUninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}
