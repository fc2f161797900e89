#include "commands/mdAutoSave.h"

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "base/mdLog.h"
#include "commands/mdFileHandling.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"

#include <QDir>

namespace {

constexpr qint64 SecondsBetweenBackups = 600;

void autoSave()
{
    WriteLog(QStringLiteral("Begin Autosave"));
    if (!Form || !Preferences)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    // Whether backups are written is up to this folder alone. The preference `AutoBackup` is a hint to the user on the
    // preferences screen and no switch: that is meant.
    const QString folder = Preferences->AutoBackupPath();
    if (!FileSystem().FolderExists(folder)) {
        WriteLog(QStringLiteral("Autosave cancelled. Path not found"));
        return;
    }
    Form->SaveXML(QDir(folder).absolutePath() + u'/' + Document().copyName());
    WriteLog(QStringLiteral("End Autosave"));
}

QString noted(const QDateTime &time)
{
    // With its offset, so that ten minutes are ten minutes in the night in which the clocks change, too.
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
}

} // namespace

void mdAutoSave()
{
    try {
        autoSave();
    } catch (const std::exception &) {
        WriteLog(QStringLiteral("End Autosave - ERROR ENCOUNTERED"));
    }
}

void mdAutoBackupTick(QString &tag)
{
    const QDateTime last = QDateTime::fromString(tag, Qt::ISODate);
    const qint64 seconds = last.isValid() ? last.secsTo(Now()) : 0;
    // A time that is yet to come was noted before the clock was set back. Waiting until it comes round again would
    // leave the claim without a backup for hours, or years.
    if (!last.isValid() || seconds < 0) {
        tag = noted(Now());
        return;
    }
    if (seconds < SecondsBetweenBackups)
        return;
    mdAutoSave();
    tag = noted(Now());
}
