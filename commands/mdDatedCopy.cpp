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

} // namespace

QString WriteDatedCopy(const QString &folder, const QByteArray &bytes)
{
    const QString name = stem() + Now().toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"));
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
