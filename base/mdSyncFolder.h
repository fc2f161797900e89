#pragma once

class QByteArray;

/// Flushes a folder's entries to the disk; 0 or the system's error. If the file system can't do this, or the folder is
/// writable but can't be opened, relies on the system's order of writing and returns 0.
int mdSyncFolder(const QByteArray &folder);
