#pragma once

#include <QString>

/// Writes the claim as it stands into the backup folder, under its own file name; one backup for each name. The claim
/// itself is not touched and stays changed. Without the folder nothing is written. No failure reaches the caller; one
/// of the write shows its box, at each backup anew until the cause is gone, which is meant.
void mdAutoSave();

/// One tick of the timer for backups. `tag` is the time from which the ten minutes are counted, empty until the first
/// tick has noted it: a first backup is due ten minutes after that. It is due whether or not the claim has changed.
void mdAutoBackupTick(QString &tag);
