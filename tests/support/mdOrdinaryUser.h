#pragma once

#include <sys/wait.h>
#include <unistd.h>

/// A user who is not the administrator, who may read and write everything.
inline constexpr uid_t OrdinaryUser = 65534;

/// Runs a call whose result is from 0 to 250 as a user who is not the administrator: in a child process where the
/// tests run as the administrator.
template <class Call> int resultAsOrdinaryUser(Call call)
{
    constexpr int Failed = 255;
    if (geteuid() != 0)
        return call();
    const pid_t child = fork();
    if (child == 0) {
        if (setuid(OrdinaryUser) != 0)
            _exit(Failed);
        int result = Failed;
        try {
            result = call();
        } catch (...) { }
        _exit(result);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : Failed;
}
