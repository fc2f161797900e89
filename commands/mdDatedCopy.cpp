#include "commands/mdDatedCopy.h"

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "base/mdOwnFolder.h"
#include "base/mdShortenedName.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <tuple>
#include <vector>

namespace {

constexpr QFile::Permissions FileOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

constexpr qsizetype LongestStem = 180; // bytes: file names are limited to 255, and the time and a number follow
constexpr int MostCopiesInASecond = 100;
const QString TimeOfCopy = QStringLiteral("yyyy-MM-dd HH.mm.ss");
const QString NameOfCopy = QStringLiteral(
    "^(.+) ([0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}\\.[0-9]{2}\\.[0-9]{2})(?: \\(([0-9]{1,3})\\))?\\.zr3$");
constexpr qint64 WrittenWithinSeconds = 60; ///< of the time in its name

/// A file name without its extension, valid on every file system.
QString stemOf(const QString &fileName)
{
    QString name = QFileInfo(fileName).completeBaseName();
    for (QChar &c : name)
        if (c < u' ' || QStringLiteral("\\/:*?\"<>|").contains(c))
            c = u'_';
    name = mdShortenedName(name, LongestStem);
    return name.isEmpty() ? QStringLiteral("Claim") : name;
}

/// Creates a new file; false if that fails. Copies made in the same second are numbered.
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

/// The parts of a copy's name.
struct clsCopyName {
    QString stem;
    QDateTime time;
    int number = 1;
};

std::optional<clsCopyName> partsOf(const QString &name)
{
    const QRegularExpression pattern(NameOfCopy, QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return {};
    const clsCopyName parts {match.captured(1), QDateTime::fromString(match.captured(2), TimeOfCopy),
        match.hasCaptured(3) ? match.captured(3).toInt() : 1};
    return parts.time.isValid() ? std::optional(parts) : std::nullopt;
}

struct clsOlderCopy {
    QString path;
    clsCopyName name;
};

/// The unchanged copies of one claim except the latest, newest first.
std::vector<clsOlderCopy> olderCopies(const QFileInfo &latest)
{
    std::vector<clsOlderCopy> copies;
    const auto own = partsOf(latest.fileName());
    if (!own)
        return copies;
    for (const QFileInfo &file : latest.dir().entryInfoList(QDir::Files | QDir::NoSymLinks | QDir::Hidden)) {
        const auto name = partsOf(file.fileName());
        if (name && name->stem == own->stem && file.fileName() != latest.fileName()
            && qAbs(name->time.secsTo(file.lastModified())) <= WrittenWithinSeconds)
            copies.push_back({file.filePath(), *name});
    }
    std::sort(copies.begin(), copies.end(), [](const clsOlderCopy &a, const clsOlderCopy &b) {
        return std::tie(a.name.time, a.name.number) > std::tie(b.name.time, b.name.number);
    });
    return copies;
}

} // namespace

QString WriteDatedCopy(const QString &folder, const QByteArray &bytes, const QString &fileName)
{
    // The copy of a claim always gets a claim's extension.
    const QString extension = fileName.isEmpty() ? QStringLiteral(".zr3") : u'.' + QFileInfo(fileName).suffix();
    const QString name
        = stemOf(fileName.isEmpty() ? Document().copyName() : fileName) + u' ' + Now().toString(TimeOfCopy);
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

void KeepNewestCopies(const QString &latest, qsizetype most) noexcept
{
    try {
        const std::vector<clsOlderCopy> copies = olderCopies(QFileInfo(latest));
        for (size_t place = size_t(qMax(qsizetype(0), most - 1)); place < copies.size(); ++place)
            QFile::remove(copies[place].path);
    } catch (...) {
        // A copy that can't be examined is kept.
    }
}
