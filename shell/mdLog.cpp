#include "shell/mdLog.h"

#include "shell/mdClock.h"
#include "shell/mdProgramFolder.h"
#include "shell/mdTextDocumentHandling.h"

namespace {

std::function<bool()> logSwitch;

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
