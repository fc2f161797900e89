#include "wordexport/mdProcessGroup.h"

#include <QProcess>

#include <csignal>

#include <unistd.h>

void mdGiveOwnGroup(QProcess &process)
{
    process.setChildProcessModifier([] { (void)::setsid(); });
}

void mdKillGroup(qint64 process)
{
    if (process > 1)
        (void)::kill(pid_t(-process), SIGKILL);
}

void mdWaitForGroup(qint64 process)
{
    constexpr int Patience = 40;
    constexpr useconds_t Moment = 5'000;
    for (int i = 0; process > 1 && i < Patience && ::kill(pid_t(-process), 0) == 0; ++i)
        ::usleep(Moment);
}
