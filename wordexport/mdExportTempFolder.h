#pragma once

#include <QString>

/// The folder of the sheets while an export runs: "~ZR3Temp" under the export folder.
QString mdExportTempFolder(const QString &exportFolder);

/// Makes the folder, for its owner alone, since what a claim says is confidential; and empties it, so that the files of
/// an export that died are swept away. A folder that can't be made, or that holds what no export put there, is a
/// run-time error.
void mdCreateExportTempFolder(const QString &exportFolder);

/// Deletes every file in the folder, and then the folder itself if so asked.
void mdClearExportTempFolder(const QString &exportFolder, bool deleteFolder);
