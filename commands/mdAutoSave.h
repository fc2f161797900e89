#pragma once

#include <QString>

/// Writes the claim to the backup folder under its own file name, replacing the last backup of that name. The claim
/// itself is not touched and still counts as changed. Does nothing if the folder is missing. Raises no error; a failed
/// write shows a message box at every backup until the cause is removed. Required behaviour; do not fix.
void mdAutoSave();

/// One tick of the backup timer. `tag` is the time from which the ten minutes are counted, and is empty until the first
/// tick has set it: the first backup is due ten minutes later, whether or not the claim has changed.
void mdAutoBackupTick(QString &tag);
