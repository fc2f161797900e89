#include "base/mdDatabasePath.h"

#include "base/clsFileSystem.h"
#include "base/clsProgramEnd.h"
#include "base/clsUserInterface.h"
#include "base/mdGetFolder.h"
#include "base/mdProgramFolder.h"
#include "base/mdRegistry.h"

#include <QDir>

namespace {

QString registryName()
{
    return QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmor\\ZR3") + QStringLiteral("\\Database Path");
}

/// The folder that a stored text refers to.
QString folderOf(QString stored)
{
    if (stored.endsWith(u'\\') || stored.endsWith(u'/'))
        stored.chop(1);
    return stored.isEmpty() ? DefaultDatabasePath() : stored;
}

} // namespace

QString GetDatabasePath()
{
    const QString path = folderOf(ReadRegKey(registryName()));
    if (!FileSystem().FolderExists(path)) {
        UserInterface().systemMessage(QStringLiteral("The folder ") + path
                + QStringLiteral(" does not exist. Please contact your system administrator"),
            QStringLiteral("Folder Error"), clsUserInterface::Critical, clsUserInterface::OKOnly);
        throw clsProgramEnd();
    }
    // Written even if unchanged, and without checking access first: if it can't be written, the error message appears
    // each time. Required behaviour; do not fix.
    SetDatabasePath(path);
    return path;
}

QString StoredDatabasePath()
{
    return folderOf(ReadRegKeyQuietly(registryName()));
}

bool DatabasePathIsMissing()
{
    return RegKeyIsMissing(registryName());
}

bool DatabasePathIsDefault()
{
    const QString stored = ReadRegKeyQuietly(registryName());
    return !stored.isEmpty() && QDir(stored) == QDir(DefaultDatabasePath());
}

void SetDatabasePath(const QString &path)
{
    WriteRegKey(registryName(), path);
}

void ResetDatabasePath()
{
    const auto answer = UserInterface().systemMessage(
        QStringLiteral("This function will reset the database path to the standard setting. "
                       "Are you sure you wish to continue?"),
        QStringLiteral("Reset"), clsUserInterface::Question, clsUserInterface::YesNo);
    if (answer == clsUserInterface::Yes)
        DeleteRegKey(registryName());
}

QString DefaultDatabasePath()
{
    return ProgramPath(QStringLiteral("Databases"));
}

void SelectDatabasePath()
{
    const QString folder = GetFolder(QStringLiteral("Please select a valid database folder"));
    if (!folder.isEmpty())
        SetDatabasePath(folder);
}
