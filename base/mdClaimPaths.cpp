#include "base/mdClaimPaths.h"

#include "base/mdCommandLine.h"
#include "base/mdSystemErrorCode.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

struct clsEntry {
    QByteArray name; ///< in the system's encoding
    bool isFolder;
    /// Sorts the entries of a folder in the order of the paths below it.
    QString key;
};

bool isClaim(const QByteArray &name)
{
    return name.toLower().endsWith(".zr3");
}

/// Links to folders are not followed. Only folders and files can be or hold claims; a dangling link counts as a claim
/// that has disappeared.
bool isOfInterest(const fs::directory_entry &entry, const QByteArray &name, bool &isFolder)
{
    std::error_code error;
    const bool isLink = entry.is_symlink(error);
    const fs::file_type type = entry.status(error).type();
    isFolder = type == fs::file_type::directory;
    if (name.startsWith('.'))
        return false;
    if (isFolder)
        return !isLink && name != "Recovered";
    return isClaim(name) && (type == fs::file_type::regular || (isLink && type == fs::file_type::not_found));
}

std::vector<clsEntry> entriesOf(const QByteArray &folder)
{
    std::vector<clsEntry> entries = mdSystemOperation([&](std::error_code &error) {
        std::vector<clsEntry> found;
        for (fs::directory_iterator entry(fs::path(folder.toStdString()), error), end; !error && entry != end;
             entry.increment(error)) {
            const QByteArray name = QByteArray::fromStdString(entry->path().filename().native());
            bool isFolder = false;
            if (isOfInterest(*entry, name, isFolder))
                found.push_back({name, isFolder, QFile::decodeName(isFolder ? name + '/' : name)});
        }
        return found;
    });
    std::sort(entries.begin(), entries.end(), [](const clsEntry &a, const clsEntry &b) { return a.key < b.key; });
    return entries;
}

void addClaims(std::vector<clsClaimPath> &paths, const QString &folder);

void addEntry(std::vector<clsClaimPath> &paths, const QString &path, const clsEntry &entry)
{
    if (!NameNotInUtf8({entry.name}).isEmpty())
        paths.push_back({path, QStringLiteral("File Name"), RefusalOfName(entry.name)});
    else if (entry.isFolder)
        addClaims(paths, path);
    else
        paths.push_back({path});
}

void addClaims(std::vector<clsClaimPath> &paths, const QString &folder)
{
    const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
    std::vector<clsEntry> entries;
    try {
        entries = entriesOf(QFile::encodeName(folder));
    } catch (const clsRunTimeError &error) {
        paths.push_back({folder, QStringLiteral("Folder Not Read"),
            QStringLiteral("The claims of this folder are left out, because it can't be read: %1.")
                .arg(error.description())});
    }
    for (const clsEntry &entry : entries)
        addEntry(paths, start + QFile::decodeName(entry.name), entry);
}

} // namespace

std::vector<clsClaimPath> mdClaimPaths(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {{path}};
    std::vector<clsClaimPath> paths;
    addClaims(paths, path);
    return paths;
}
