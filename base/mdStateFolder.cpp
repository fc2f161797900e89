#include "base/mdStateFolder.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdOwnFolder.h"

#include <QDir>
#include <QFileInfo>

QString StateFolder()
{
    const QString told = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state = QDir::isAbsolutePath(told) ? told : QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/Velmor");
}

bool MakeStateFolder()
{
    if (LeadsOverForeignLink(StateFolder()))
        return false;
    try {
        FileSystem().CreateFolders(QFileInfo(StateFolder()).path());
    } catch (const clsRunTimeError &) {
        return false;
    }
    // If the user has made it a link, the target must be the user's folder.
    const QString real = QFileInfo(StateFolder()).canonicalFilePath();
    return MakeOwnFolder(real.isEmpty() ? StateFolder() : real);
}
