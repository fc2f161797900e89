#include "base/mdDesktopFolder.h"

#include "base/mdLog.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString namedDesktop()
{
    const QString profile = qEnvironmentVariable("UserProfile");
    if (!profile.isEmpty())
        return profile + QStringLiteral("/Desktop");
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

} // namespace

QString mdDesktopFolder()
{
    WriteLog(QStringLiteral("Begin Get Desktop Folder"));
    QString folder = namedDesktop();
    if (!QDir(folder).exists())
        folder = QDir::homePath();
    WriteLog(QStringLiteral("End Get Desktop Folder"));
    return folder;
}
