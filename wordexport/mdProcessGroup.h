#pragma once

#include <QtGlobal>

class QProcess;

/// Lets a process that is about to start begin a group of its own, to which all processes belong that it starts.
void mdGiveOwnGroup(QProcess &process);

/// Ends all processes of the group that a process began, and waits until they are gone, a second at most. A group that
/// has ended is no failure.
void mdKillGroup(qint64 process);
