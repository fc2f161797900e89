#pragma once

#include <sys/wait.h>
#include <unistd.h>

/// A user who is not the administrator, who may read and write everything; and another such one.
inline constexpr uid_t OrdinaryUser = 65534;
inline constexpr uid_t SecondUser = 65432;

/// Runs a call whose result is from 0 to 250 as a user who is not the administrator: in a child process where the
/// tests run as the administrator. Where they don't, it is the tests' own user, whoever is asked for.
template <class Call> int resultAsOrdinaryUser(Call call, uid_t who = OrdinaryUser)
{
    constexpr int Failed = 255;
    if (geteuid() != 0)
        return call();
    const pid_t child = fork();
    if (child == 0) {
        if (setuid(who) != 0)
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
