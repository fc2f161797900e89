#include "base/mdProgramFolder.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// A test puts the program folder elsewhere, for all that asks for it.
QString folderInstead;

QString runningProgramFolder()
{
    // Asked of the system, since the application object does not exist yet when the first paths are needed.
    const QString folder = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    return folder.isEmpty() ? QCoreApplication::applicationDirPath() : folder;
}

} // namespace

QString ProgramFolder()
{
    static const QString running = runningProgramFolder();
    return folderInstead.isEmpty() ? running : folderInstead;
}

QString ProgramPath(const QString &relative)
{
    return ProgramFolder() + u'/' + relative;
}

void SetProgramFolder(const QString &folder)
{
    folderInstead = folder;
}

QString LogsFolder()
{
    return ProgramPath(QStringLiteral("Logs"));
}

QString TemplatesFolder()
{
    return ProgramPath(QStringLiteral("Templates"));
}
