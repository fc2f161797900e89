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
    // Only the existence of this folder decides whether backups are written. The preference `AutoBackup` is a hint on
    // the preferences screen, not a switch. Required behaviour; do not fix.
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
    // With the UTC offset, so that ten minutes stay ten minutes when the clocks change.
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
    // A time in the future was set before the clock was put back. Waiting for it would leave the claim without a backup
    // for hours or years.
    if (!last.isValid() || seconds < 0) {
        tag = noted(Now());
        return;
    }
    if (seconds < SecondsBetweenBackups)
        return;
    mdAutoSave();
    tag = noted(Now());
}
