#include "base/mdLog.h"

#include "base/mdClock.h"
#include "base/mdDatabasePath.h"
#include "base/mdOwnFolder.h"
#include "base/mdProgramFolder.h"
#include "base/mdStateFolder.h"
#include "base/mdTextDocumentHandling.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

// All floors write the log, and the preferences that switch it on are above this floor. Never destroyed: the
// preferences may reset it at the very end of the program.
std::function<bool()> &logSwitch = *new std::function<bool()>;

/// Whether this user can read and write a file in a folder, and its backup copy.
bool canBeKept(const QString &folder, const QString &name)
{
    const QFileInfo place(folder);
    const QFileInfo file(folder + u'/' + name);
    return place.isDir() && place.isWritable() && !LeadsOverForeignLink(file.filePath())
        && (!file.exists() || (file.isFile() && file.isReadable() && file.isWritable()));
}

/// The user's private folder with the day's file in it; empty if it can't be created. Creates the file at once: the log
/// can move while the user works, and the box of a new day would make no sense then.
QString ownFolder(const QString &folder, const QString &name)
{
    if (LeadsOverForeignLink(folder) || !MakeOwnFolder(folder))
        return {};
    QFile file(folder + u'/' + name);
    const bool made = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
    return made || file.exists() ? folder : QString();
}

/// The folder for the day's file in or below "Logs"; empty if neither is writable.
QString folderBelow(const QString &logs, const QString &name)
{
    return canBeKept(logs, name) ? logs : ownFolder(logs + u'/' + OwnName(), name);
}

/// The folder beside the program, unless it exists and this user can't write the day's file in it, because it was
/// installed for all users or the file belongs to another. Each line would show a box.
QString folderOfLog(const QString &name)
{
    if (!QFileInfo(LogsFolder()).isDir())
        return LogsFolder();
    if (const QString beside = folderBelow(LogsFolder(), name); !beside.isEmpty())
        return beside;
    const QString withPreferences = StoredDatabasePath() + QStringLiteral("/Logs");
    MakeFolderLikeItsParent(withPreferences);
    if (const QString shared = folderBelow(withPreferences, name); !shared.isEmpty())
        return shared;
    // If this folder can't be written to either, each logged line shows an error box.
    const QString own = StateFolder() + QStringLiteral("/Logs");
    if (MakeStateFolder())
        ownFolder(own, name);
    return own;
}

QString pathOfDay(const QDate &day)
{
    const QString name = day.toString(QStringLiteral("dd-MM-yyyy")) + QStringLiteral(".txt");
    return folderOfLog(name) + u'/' + name;
}

} // namespace

void WriteLog(const QString &message)
{
    if (!logSwitch || !logSwitch())
        return;
    const QDateTime now = Now();
    const QString path = pathOfDay(now.date());
    const QString line = now.toString(QStringLiteral("dd/MM/yyyy HH:mm:ss")) + QStringLiteral(" : ") + message
        + QStringLiteral("\r\n");
    WriteTextDocument(ReadTextDocument(path, false) + line, path, false);
}

clsNoLogScope::clsNoLogScope()
    : m_previous(std::exchange(logSwitch, {}))
{ }

clsNoLogScope::~clsNoLogScope()
{
    logSwitch = std::move(m_previous);
}

QString LogPath()
{
    return pathOfDay(Now().date());
}

void SetLogSwitch(std::function<bool()> isOn)
{
    logSwitch = std::move(isOn);
}
