#include "wordexport/mdExportTempFolder.h"

#include "shell/clsFileSystem.h"
#include "shell/mdCustomMessages.h"
#include "shell/mdLog.h"
#include "shell/mdSystemErrorCode.h"

#include <filesystem>
#include <vector>

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

/// The files in the folder. A folder in there is none of the export's, so that nothing at all may be swept away.
std::vector<fs::path> filesIn(const fs::path &folder)
{
    std::vector<fs::path> files;
    std::error_code error;
    fs::directory_iterator entry;
    do
        entry = fs::directory_iterator(folder, error);
    while (error == std::errc::interrupted);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        const fs::file_status status = entry->symlink_status(error);
        mdCheckSystemError(error);
        if (status.type() == fs::file_type::directory)
            throw clsRunTimeError(clsRunTimeError::PathFileAccess);
        files.push_back(entry->path());
    }
    mdCheckSystemError(error);
    return files;
}

/// The lock on the folder, which it waits for; nothing where another export has it too long.
std::shared_ptr<clsFileLock> locked(const QString &exportFolder)
{
    try {
        return std::make_shared<clsFileLock>(
            mdExportTempFolder(exportFolder) + QStringLiteral("/1(1).doc"), clsFileLock::Writes);
    } catch (const clsRunTimeError &) {
        mdCustomMessages(QStringLiteral("Another export into this folder is still running. Please wait until it has "
                                        "ended and try again."),
            QStringLiteral("Export"));
        return {};
    }
}

} // namespace

QString mdExportTempFolder(const QString &exportFolder)
{
    return exportFolder + QStringLiteral("/~ZR3Temp");
}

std::shared_ptr<clsFileLock> mdCreateExportTempFolder(const QString &exportFolder)
{
    WriteLog(QStringLiteral("Begin Create Export Temp Folder"));
    const fs::path folder = folderOf(exportFolder);
    refuseForeignFolder(folder);
    std::error_code error;
    std::shared_ptr<clsFileLock> lock;
    // The export that was waited for takes its folder with it.
    do {
        fs::create_directory(folder, error);
        mdCheckSystemError(error);
        lock = locked(exportFolder);
        if (!lock)
            return lock;
    } while (!lock->isOfWhatIsThere());
    mdClearExportTempFolder(exportFolder, false);
    fs::permissions(folder, fs::perms::owner_all, error); // a file system without permissions is no reason to stop
    WriteLog(QStringLiteral("End Create Export Temp Folder"));
    return lock;
}

void mdClearExportTempFolder(const QString &exportFolder, bool deleteFolder)
{
    WriteLog(QStringLiteral("Begin Clear Export Temp Folder"));
    const fs::path folder = folderOf(exportFolder);
    refuseForeignFolder(folder);
    std::error_code error;
    for (const fs::path &file : filesIn(folder)) {
        fs::remove(file, error);
        mdCheckSystemError(error);
    }
    if (deleteFolder) {
        fs::remove(folder, error);
        mdCheckSystemError(error);
    }
    WriteLog(QStringLiteral("End Clear Export Temp Folder"));
}
