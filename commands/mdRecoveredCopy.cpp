#include "commands/mdRecoveredCopy.h"

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "base/mdCodePage.h"
#include "base/mdDatabasePath.h"
#include "base/mdOwnFolder.h"
#include "base/mdShortenedName.h"
#include "base/mdStateFolder.h"
#include "commands/mdLossCause.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QFile>
#include <QFileInfo>

#include <exception>

namespace {

constexpr QFile::Permissions FileOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

constexpr qsizetype LongestStem = 180; // bytes: file names end at 255, and the time and a number follow
constexpr int MostCopiesInASecond = 100;

/// The claim's file name without its extension, as every file system takes it.
QString stem()
{
    QString name = QFileInfo(Document().copyName()).completeBaseName();
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

/// Writes the copy into the folder and returns its path; empty where it failed, and then nothing is left of it.
QString writtenIn(const QString &folder, const QString &name, const QByteArray &bytes)
{
    QFile file;
    if (!MakeOwnFolder(folder) || !createNew(file, folder + u'/' + name))
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

bool lastCopyHolds(const QByteArray &bytes)
{
    const auto &last = Document().lastCopy;
    try {
        return !last.path.isEmpty() && bytes == last.bytes && FileSystem().ReadFile(last.path) == bytes;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// Writes the copy to the first place that takes it.
void writeNew(clsRecoveredCopy &copy, const QByteArray &bytes)
{
    const QString name = stem() + Now().toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"));
    // The database folder may have gone, or belong to others: the user's last copy must not depend on it.
    for (const QString &parent : {StoredDatabasePath(), StateFolder()}) {
        const QString folder = parent + QStringLiteral("/Recovered");
        if (parent != StateFolder() || MakeStateFolder())
            copy.path = writtenIn(folder, name, bytes);
        if (!copy.path.isEmpty())
            return;
        copy.tried << folder;
    }
}

clsRecoveredCopy writeCopy()
{
    clsRecoveredCopy copy;
    copy.cause = FormLossCause();
    if (copy.cause == clsLossCause::None)
        return copy;
    const QByteArray bytes = mdToCodePage(Form->XMLOutput());
    // A desktop that ends its session asks more than once.
    if (lastCopyHolds(bytes)) {
        copy.path = Document().lastCopy.path;
        return copy;
    }
    writeNew(copy, bytes);
    Document().lastCopy = {copy.path, bytes};
    return copy;
}

} // namespace

clsRecoveredCopy WriteRecoveredCopy() noexcept
{
    try {
        return writeCopy();
    } catch (...) {
        return {clsLossCause::UnsavedChanges, {}, {}};
    }
}
