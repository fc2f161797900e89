#include "base/mdOwnDatabasePath.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdCodePage.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace {

/// Creates the folder, readable by this user only; an existing one keeps its permissions.
bool makeFolder(const QString &folder)
{
    try {
        FileSystem().CreateFolders(folder);
        return true;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// Puts fresh preferences where there are none. The file appears complete and never replaces another, so that with two
/// first starts at once neither reads half a file or overwrites the other's.
bool putPreferences(const QString &path)
{
    if (QFileInfo::exists(path))
        return true;
    const QByteArray fresh
        = mdToCodePage(GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")));
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open() || file.write(fresh) != fresh.size() || !file.flush())
        return false;
    if (!file.rename(path))
        return QFileInfo::exists(path);
    file.setAutoRemove(false);
    return true;
}

/// Resetting the folder stores the one beside the program, even for a user who can't write there and could not save
/// preferences in it.
bool storedFolderIsOutOfReach()
{
    return DatabasePathIsDefault() && !QFileInfo(DefaultDatabasePath()).isWritable();
}

} // namespace

QString OwnDatabasePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/Velmor/ZR3/Databases");
}

void GiveOwnDatabasePath()
{
    if (!DatabasePathIsMissing() && !storedFolderIsOutOfReach())
        return;
    const QString folder = OwnDatabasePath();
    if (makeFolder(folder) && putPreferences(folder + QStringLiteral("/Preferences Database.vzp")))
        SetDatabasePath(folder);
}
