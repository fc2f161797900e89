#include "controls/mdUserWords.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdSystemFailure.h"

#include <QFileInfo>
#include <QSaveFile>

#include <optional>

namespace {

/// No user types this much; a larger file must be something else.
constexpr qint64 LargestFile = 1 << 20;

std::optional<QStringList> read(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QStringList();
    QFile file(path);
    // A pipe in place of the file would block the program.
    if (!info.isFile() || info.size() > LargestFile || !file.open(QIODevice::ReadOnly))
        return {};
    QStringList words;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines)
        if (const QString word = line.trimmed(); !word.isEmpty())
            words << word;
    return words;
}

bool write(const QString &path, const QStringList &words)
{
    try {
        FileSystem().CreateFolders(QFileInfo(path).path());
    } catch (const clsRunTimeError &) {
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (!QFileInfo::exists(path))
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write((words.join(u'\n') + u'\n').toUtf8());
    return file.commit();
}

} // namespace

QStringList UserWords(const QString &path)
{
    return read(path).value_or(QStringList());
}

void AddUserWord(const QString &path, const QString &word)
{
    // Read again each time: another run of the program may have added a word meanwhile, or the user removed one.
    std::optional<QStringList> words = read(path);
    if (words && words->contains(word))
        return;
    if (words && write(path, *words << word))
        return;
    mdSystemFailure(QStringLiteral("File Not Saved"),
        QStringLiteral("There was a problem writing to the following path:"), path,
        clsRunTimeError(clsRunTimeError::PathFileAccess));
}
