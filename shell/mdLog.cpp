#include "shell/mdLog.h"

#include "shell/mdClock.h"
#include "shell/mdDatabasePath.h"
#include "shell/mdProgramFolder.h"
#include "shell/mdTextDocumentHandling.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Never destroyed: the preferences take it back when they go, which can be at the very end of the program.
std::function<bool()> &logSwitch = *new std::function<bool()>;

/// The folder beside the program. Where that is there and this user may not write into it, as in a program that was
/// installed for all users, the log lies with the user's preferences, or each line would show a box.
QString folderOfLog()
{
    const QFileInfo beside(LogsFolder());
    if (!beside.isDir() || beside.isWritable())
        return beside.filePath();
    const QString own = StoredDatabasePath() + QStringLiteral("/Logs");
    QDir().mkpath(own);
    return own;
}

QString pathOfDay(const QDate &day)
{
    return folderOfLog() + u'/' + day.toString(QStringLiteral("dd-MM-yyyy")) + QStringLiteral(".txt");
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

QString LogPath()
{
    return pathOfDay(Now().date());
}

void SetLogSwitch(std::function<bool()> isOn)
{
    logSwitch = std::move(isOn);
}
