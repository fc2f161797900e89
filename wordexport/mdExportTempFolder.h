#pragma once

#include <QString>

class clsZR3Form;

/// The folder of the sheets while an export runs: "~ZR3Temp" under the claim's export folder.
QString mdExportTempFolder(const clsZR3Form &form);

/// Makes the folder and empties it, so that the files of an export that died are swept away.
/// A folder that can't be made is a run-time error.
void mdCreateExportTempFolder(const clsZR3Form &form);

/// Deletes every file in the folder, and then the folder itself if so asked.
void mdClearExportTempFolder(const clsZR3Form &form, bool deleteFolder);
