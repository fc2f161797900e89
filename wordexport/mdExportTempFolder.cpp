#include "wordexport/mdExportTempFolder.h"

#include "base/clsFileSystem.h"
#include "base/clsFolderLock.h"
#include "base/mdCustomMessages.h"
#include "base/mdLog.h"
#include "base/mdSystemErrorCode.h"
#include "wordexport/clsExport.h"

#include <filesystem>
#include <vector>

namespace {

namespace fs = std::filesystem;

fs::file_type typeOf(const fs::path &path)
{
    return mdSystemOperation([&](std::error_code &error) {
        const fs::file_type type = fs::symlink_status(path, error).type();
        if (type == fs::file_type::not_found)
            error.clear();
        return type;
    });
}

/// Only the export's own files may be deleted: the path must be a folder, not a link to one.
void refuseForeignFolder(const fs::path &folder)
{
    const fs::file_type type = typeOf(folder);
    if (type != fs::file_type::not_found && type != fs::file_type::directory)
        throw clsRunTimeError(clsRunTimeError::PathFileAccess);
}

/// The files in the folder. The export creates no subfolders; if there is one, nothing may be deleted.
std::vector<fs::path> filesIn(const fs::path &folder)
{
    auto entries = mdSystemOperation([&](std::error_code &error) {
        std::vector<fs::path> found;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
            found.push_back(entry->path());
        return found;
    });
    for (const fs::path &entry : entries)
        if (typeOf(entry) == fs::file_type::directory)
            throw clsRunTimeError(clsRunTimeError::PathFileAccess);
    return entries;
}

void removeOne(const fs::path &path)
{
    mdSystemOperation([&](std::error_code &error) { return fs::remove(path, error); });
}

/// The lock on the folder, after waiting for it; null if another export holds it too long.
std::shared_ptr<clsFolderLock> locked(const QString &folder)
{
    try {
        return std::make_shared<clsFolderLock>(folder);
    } catch (const clsRunTimeError &) {
        mdCustomMessages(QStringLiteral("Another export into this folder is still running. Please wait until it has "
                                        "ended and try again."),
            QStringLiteral("Export"));
        return {};
    }
}

} // namespace

QString mdExportTempFolder(const clsExport &run)
{
    return run.exportFolder + u'/' + run.tempFolderName;
}

std::shared_ptr<clsFolderLock> mdCreateExportTempFolder(const QString &path)
{
    WriteLog(QStringLiteral("Begin Create Export Temp Folder"));
    const fs::path folder = path.toStdString();
    refuseForeignFolder(folder);
    std::shared_ptr<clsFolderLock> lock;
    // An export that ends deletes its folder, so create it again.
    do {
        FileSystem().CreateFolder(path);
        lock = locked(path);
        if (!lock)
            return lock;
    } while (!lock->isOfWhatIsThere());
    mdClearExportTempFolder(path, false);
    // An existing folder may be open to others. Failure on a file system without permissions is ignored.
    std::error_code error;
    do
        fs::permissions(folder, fs::perms::owner_all, error);
    while (error == std::errc::interrupted);
    WriteLog(QStringLiteral("End Create Export Temp Folder"));
    return lock;
}

void mdClearExportTempFolder(const QString &path, bool deleteFolder)
{
    WriteLog(QStringLiteral("Begin Clear Export Temp Folder"));
    const fs::path folder = path.toStdString();
    refuseForeignFolder(folder);
    for (const fs::path &file : filesIn(folder))
        removeOne(file);
    if (deleteFolder)
        removeOne(folder);
    WriteLog(QStringLiteral("End Clear Export Temp Folder"));
}

void mdSweepExportTempFolder(const QString &path)
{
    try {
        if (!FileSystem().FolderExists(path))
            return;
        const clsFolderLock lock(path, clsFolderLock::Wait::NotAtAll);
        mdClearExportTempFolder(path, true);
    } catch (const clsRunTimeError &) { }
}
