#pragma once

#include <QtGlobal>

class QProcess;

/// Lets a process that is about to start begin a group of its own, to which all processes belong that it starts.
void mdGiveOwnGroup(QProcess &process);

/// Ends all processes of the group that a process began. A group that has ended is no failure.
void mdKillGroup(qint64 process);

/// Waits until such a group is gone, for a moment at most.
void mdWaitForGroup(qint64 process);
