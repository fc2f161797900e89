#pragma once

#include <QString>

#include <memory>

class clsFolderLock;
struct clsExport;

/// The folder of the sheets during an export, below the export folder.
QString mdExportTempFolder(const clsExport &run);

/// Creates the folder, readable by its owner only since claims are confidential, and deletes the files of an
/// interrupted export. A folder that can't be created, or that contains files of other origin, is a run-time error.
/// While the result lives, no other program's export works in the folder, which would mix the sheets of two claims in
/// one document. Null, after a message, if another export doesn't end in time.
std::shared_ptr<clsFolderLock> mdCreateExportTempFolder(const QString &folder);

/// Deletes every file in the folder, and the folder itself if `deleteFolder` is set.
void mdClearExportTempFolder(const QString &folder, bool deleteFolder);

/// Deletes the folder of an interrupted export. Does nothing if there is none, if another export is using it, or if it
/// contains files of other origin.
void mdSweepExportTempFolder(const QString &folder);
