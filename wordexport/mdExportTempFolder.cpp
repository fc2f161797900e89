#include "wordexport/mdExportTempFolder.h"

#include "formdata/clsZR3Form.h"
#include "shell/clsRunTimeError.h"
#include "shell/mdLog.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;

fs::path folderOf(const clsZR3Form &form)
{
    return fs::path(mdExportTempFolder(form).toStdString());
}

void check(const std::error_code &error)
{
    if (error)
        throw clsRunTimeError::fromSystem(error.value());
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

} // namespace

QString mdExportTempFolder(const clsZR3Form &form)
{
    return form.ExportPath() + QStringLiteral("/~ZR3Temp");
}

void mdCreateExportTempFolder(const clsZR3Form &form)
{
    WriteLog(QStringLiteral("Begin Create Export Temp Folder"));
    const fs::path folder = folderOf(form);
    refuseForeignFolder(folder);
    std::error_code error;
    fs::create_directory(folder, error);
    check(error);
    mdClearExportTempFolder(form, false);
    WriteLog(QStringLiteral("End Create Export Temp Folder"));
}

void mdClearExportTempFolder(const clsZR3Form &form, bool deleteFolder)
{
    WriteLog(QStringLiteral("Begin Clear Export Temp Folder"));
    const fs::path folder = folderOf(form);
    refuseForeignFolder(folder);
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (!entry->is_directory() || entry->is_symlink()) {
            fs::remove(entry->path(), error);
            check(error);
        }
    }
    check(error);
    if (deleteFolder) {
        fs::remove(folder, error);
        check(error);
    }
    WriteLog(QStringLiteral("End Clear Export Temp Folder"));
}
