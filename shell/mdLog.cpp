#include "shell/mdLog.h"

#include "shell/mdClock.h"
#include "shell/mdProgramFolder.h"
#include "shell/mdTextDocumentHandling.h"

namespace {

// Never destroyed: the preferences take it back when they go, which can be at the very end of the program.
std::function<bool()> &logSwitch = *new std::function<bool()>;

QString pathOfDay(const QDate &day)
{
    return LogsFolder() + u'/' + day.toString(QStringLiteral("dd-MM-yyyy")) + QStringLiteral(".txt");
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
