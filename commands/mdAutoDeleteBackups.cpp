#include "commands/mdAutoDeleteBackups.h"

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"

#include <QDir>

namespace {

constexpr qint64 DaysKept = 60;

/// Tests the letters only, with or without a point before them. A backup of an unsaved claim has another ending and is
/// kept.
bool isBackup(const QFileInfo &file)
{
    return file.fileName().right(3).toLower() == QLatin1String("zr3");
}

} // namespace

void mdAutoDeleteBackups()
{
    if (!Preferences)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    if (!Preferences->AutoDeleteBackups())
        return;
    const QString folder = Preferences->AutoBackupPath();
    if (!FileSystem().FolderExists(folder))
        return;
    const QDate today = Now().date();
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
        if (isBackup(file) && file.lastModified().date().daysTo(today) > DaysKept)
            FileSystem().DeleteFile(file.filePath());
}
