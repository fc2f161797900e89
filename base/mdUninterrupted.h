#pragma once

#include <cerrno>

/// Runs a system call, again where a signal interrupted it. Mounts on a network let signals interrupt calls that never
/// are elsewhere, such as `stat` and `unlink`.
template <class Call> auto mdUninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}
