#include "commands/mdDatedCopy.h"

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "base/mdOwnFolder.h"
#include "base/mdShortenedName.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr QFile::Permissions FileOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

constexpr qsizetype LongestStem = 180; // bytes: file names end at 255, and the time and a number follow
constexpr int MostCopiesInASecond = 100;

/// A file name without its extension, as every file system takes it.
QString stemOf(const QString &fileName)
{
    QString name = QFileInfo(fileName).completeBaseName();
    for (QChar &c : name)
        if (c < u' ' || QStringLiteral("\\/:*?\"<>|").contains(c))
            c = u'_';
    name = mdShortenedName(name, LongestStem);
    return name.isEmpty() ? QStringLiteral("Claim") : name;
}

/// Creates a file that was not there before; false where it can't be. Two copies of one second get numbers.
bool createNew(QFile &file, const QString &withoutExtension, const QString &extension)
{
    for (int number = 1; number <= MostCopiesInASecond; ++number) {
        const QString suffix = number > 1 ? QStringLiteral(" (%1)").arg(number) : QString();
        file.setFileName(withoutExtension + suffix + extension);
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, FileOwnerOnly))
            return true;
    }
    return false;
}

} // namespace

QString WriteDatedCopy(const QString &folder, const QByteArray &bytes, const QString &fileName)
{
    // A claim's copy is a claim, whatever its file was called.
    const QString extension = fileName.isEmpty() ? QStringLiteral(".zr3") : u'.' + QFileInfo(fileName).suffix();
    const QString name = stemOf(fileName.isEmpty() ? Document().copyName() : fileName)
        + Now().toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"));
    QFile file;
    if (!MakeOwnFolder(folder) || !createNew(file, folder + u'/' + name, extension))
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
