#pragma once

#include <QtGlobal>

class QProcess;

/// Makes a process that is about to start the leader of a new process group, which its child processes join.
void mdGiveOwnGroup(QProcess &process);

/// Kills all processes of that group. A group that has already ended is not an error.
void mdKillGroup(qint64 process);

/// Waits briefly until that group has ended.
void mdWaitForGroup(qint64 process);
