#pragma once

#include <QString>

#include <memory>

class clsFolderLock;

/// The folder of the sheets while an export runs: "~ZR3Temp" under the export folder.
QString mdExportTempFolder(const QString &exportFolder);

/// Makes the folder, for its owner alone, since what a claim says is confidential; and empties it, so that the files of
/// an export that died are swept away. A folder that can't be made, or that holds what no export put there, is a
/// run-time error. While the result lives, no other program's export works in the folder, which would mix the sheets of
/// two claims in one document; nothing, after a message, where another doesn't end in time.
std::shared_ptr<clsFolderLock> mdCreateExportTempFolder(const QString &exportFolder);

/// Deletes every file in the folder, and then the folder itself if so asked.
void mdClearExportTempFolder(const QString &exportFolder, bool deleteFolder);
