#include "shell/mdRecoveredCopy.h"

#include "formdata/clsZR3Form.h"
#include "shell/clsFileSystem.h"
#include "shell/mdClock.h"
#include "shell/mdCodePage.h"
#include "shell/mdDatabasePath.h"
#include "shell/mdFileHandling.h"
#include "shell/mdGlobals.h"
#include "shell/mdShortenedName.h"

#include <QDir>
#include <QFile>

#include <exception>

namespace {

constexpr QFile::Permissions FileOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions FolderOwnerOnly = FileOwnerOnly | QFile::ExeOwner;

constexpr qsizetype LongestStem = 180; // bytes: file names end at 255, and the time and a number follow
constexpr int MostCopiesInASecond = 100;

QString stateFolder()
{
    const QString told = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state = QDir::isAbsolutePath(told) ? told : QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/Velmor");
}

/// The folder "Recovered" below another, made where it is missing; empty where it can't be.
QString recoveredFolder(const QString &parent)
{
    const QString folder = parent + QStringLiteral("/Recovered");
    if (!QDir().mkdir(folder, FolderOwnerOnly) && !FileSystem().FolderExists(folder))
        return {};
    // One that was there before may be open to others; where it is not this user's, it stays as it is.
    QFile::setPermissions(folder, FolderOwnerOnly);
    return folder;
}

/// The claim's file name without its extension, as every file system takes it.
QString stem()
{
    QString name = QFileInfo(FormCopyName()).completeBaseName();
    for (QChar &c : name)
        if (c < u' ' || QStringLiteral("\\/:*?\"<>|").contains(c))
            c = u'_';
    name = mdShortenedName(name, LongestStem);
    return name.isEmpty() ? QStringLiteral("Claim") : name;
}

/// Creates a file that was not there before; false where it can't be. Two copies of one second get numbers.
bool createNew(QFile &file, const QString &withoutExtension)
{
    for (int number = 1; number <= MostCopiesInASecond; ++number) {
        const QString suffix = number > 1 ? QStringLiteral(" (%1)").arg(number) : QString();
        file.setFileName(withoutExtension + suffix + QStringLiteral(".zr3"));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, FileOwnerOnly))
            return true;
    }
    return false;
}

/// Writes the copy below the folder and returns its path; empty where it failed, and then nothing is left of it.
QString writtenBelow(const QString &parent, const QString &name, const QByteArray &bytes)
{
    const QString folder = recoveredFolder(parent);
    QFile file;
    if (folder.isEmpty() || !createNew(file, folder + u'/' + name))
        return {};
    file.close();
    try {
        FileSystem().WriteFile(file.fileName(), bytes);
    } catch (const std::exception &) {
        file.remove();
        return {};
    }
    return file.fileName();
}

/// What was written last, and where.
struct {
    QString path;
    QByteArray bytes;
} lastCopy;

bool lastCopyHolds(const QByteArray &bytes)
{
    try {
        return !lastCopy.path.isEmpty() && bytes == lastCopy.bytes && FileSystem().ReadFile(lastCopy.path) == bytes;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

QString writtenNew(const QByteArray &bytes)
{
    const QString name = stem() + Now().toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"));
    // The database folder may have gone, or belong to an administrator: the user's last copy must not depend on it.
    const QString written = writtenBelow(StoredDatabasePath(), name, bytes);
    if (!written.isEmpty())
        return written;
    QDir().mkpath(stateFolder());
    return writtenBelow(stateFolder(), name, bytes);
}

QString writeCopy()
{
    if (!FormNeedsRecovery())
        return {};
    const QByteArray bytes = mdToCodePage(Form->XMLOutput());
    // A desktop that ends its session asks more than once.
    if (!lastCopyHolds(bytes))
        lastCopy = {writtenNew(bytes), bytes};
    return lastCopy.path;
}

} // namespace

QString WriteRecoveredCopy() noexcept
{
    try {
        return writeCopy();
    } catch (...) {
        return {};
    }
}
