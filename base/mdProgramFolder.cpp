#include "base/mdProgramFolder.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// Tests move the program folder for all callers.
QString folderInstead;

QString runningProgramFolder()
{
    // From the system, because the first paths are needed before the application object exists.
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
