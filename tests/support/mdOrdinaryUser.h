#pragma once

#include <sys/wait.h>
#include <unistd.h>

/// Two ordinary users; root could read and write everything.
inline constexpr uid_t OrdinaryUser = 65534;
inline constexpr uid_t SecondUser = 65432;

/// Runs a call whose result is from 0 to 250 as an ordinary user: in a child process if the tests run as root.
/// Otherwise it runs as the tests' own user, whatever `who` is.
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
