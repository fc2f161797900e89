#include "wordexport/mdExportTempFolder.h"

#include "shell/mdLog.h"
#include "shell/mdSystemErrorCode.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;

fs::path folderOf(const QString &exportFolder)
{
    return mdExportTempFolder(exportFolder).toStdString();
}

/// Nobody's files but the export's own may be swept away: what stands under the name must be a folder, and not a link
/// to one.
void refuseForeignFolder(const fs::path &folder)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(folder, error);
    if (status.type() != fs::file_type::not_found && status.type() != fs::file_type::directory)
        throw clsRunTimeError(clsRunTimeError::PathFileAccess);
}

void deleteFile(const fs::directory_entry &entry)
{
    std::error_code error;
    const fs::file_status status = entry.symlink_status(error);
    mdCheckSystemError(error);
    // A folder in there is none of the export's. It is met before the first sheet is made, not after the last.
    if (status.type() == fs::file_type::directory)
        throw clsRunTimeError(clsRunTimeError::PathFileAccess);
    fs::remove(entry.path(), error);
    mdCheckSystemError(error);
}

} // namespace

QString mdExportTempFolder(const QString &exportFolder)
{
    return exportFolder + QStringLiteral("/~ZR3Temp");
}

void mdCreateExportTempFolder(const QString &exportFolder)
{
    WriteLog(QStringLiteral("Begin Create Export Temp Folder"));
    const fs::path folder = folderOf(exportFolder);
    refuseForeignFolder(folder);
    std::error_code error;
    fs::create_directory(folder, error);
    mdCheckSystemError(error);
    fs::permissions(folder, fs::perms::owner_all, error); // a file system without permissions is no reason to stop
    mdClearExportTempFolder(exportFolder, false);
    WriteLog(QStringLiteral("End Create Export Temp Folder"));
}

void mdClearExportTempFolder(const QString &exportFolder, bool deleteFolder)
{
    WriteLog(QStringLiteral("Begin Clear Export Temp Folder"));
    const fs::path folder = folderOf(exportFolder);
    refuseForeignFolder(folder);
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        deleteFile(*entry);
    mdCheckSystemError(error);
    if (deleteFolder) {
        fs::remove(folder, error);
        mdCheckSystemError(error);
    }
    WriteLog(QStringLiteral("End Clear Export Temp Folder"));
}
