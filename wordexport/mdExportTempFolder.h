#pragma once

#include <QString>

#include <memory>

class clsFolderLock;
struct clsExport;

/// The folder of the sheets while an export runs, under the export folder.
QString mdExportTempFolder(const clsExport &run);

/// Makes the folder, for its owner alone, since what a claim says is confidential; and empties it, so that the files of
/// an export that died are swept away. A folder that can't be made, or that holds what no export put there, is a
/// run-time error. While the result lives, no other program's export works in the folder, which would mix the sheets of
/// two claims in one document; nothing, after a message, where another doesn't end in time.
std::shared_ptr<clsFolderLock> mdCreateExportTempFolder(const QString &folder);

/// Deletes every file in the folder, and then the folder itself if so asked.
void mdClearExportTempFolder(const QString &folder, bool deleteFolder);

/// Sweeps away the folder of an export that was ended in the midst of it. Nothing where there is none, where another
/// export has it in hand, or where it holds what no export put there.
void mdSweepExportTempFolder(const QString &folder);
