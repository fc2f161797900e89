#pragma once

class QByteArray;

/// Brings a folder's entries to the disk; 0, or the system's error. Some file systems can't, and some folders may be
/// written but not opened: then the system's own order of writing has to do, and there is no error.
int mdSyncFolder(const QByteArray &folder);
