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

/// Makes the folder, which nobody else is to read; one that is there keeps its permissions.
bool makeFolder(const QString &folder)
{
    try {
        FileSystem().CreateFolders(folder);
        return true;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// Puts fresh preferences where there are none. They come under their name whole and only where nothing bears it, so
/// that of two first starts at once neither reads half a file, nor takes away what the other has stored.
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

/// Going back to the default folder stores the one beside the program, also for a user who may not write there and
/// could never save a preference in it.
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
