#include "costing/tables/mdCodeWordsFile.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/clsUserInterface.h"
#include "base/mdCodePage.h"
#include "base/mdCustomMessages.h"
#include "base/mdDatabasePath.h"
#include "base/mdTextDocumentHandling.h"
#include "costing/tables/clsTextTable.h"

#include <QFile>
#include <QFileInfo>

namespace {

const QString FileName = QStringLiteral("Codes.csv");

QString pathOf(const QString &name)
{
    return StoredDatabasePath() + u'/' + name;
}

void setAside(const QString &path)
{
    try {
        FileSystem().RenameFile(path, path + QStringLiteral(".broken"));
        UserInterface().tellLine(QStringLiteral("Codes.csv was broken and has been set aside"));
    } catch (const clsRunTimeError &) {
        UserInterface().tellLine(QStringLiteral("Codes.csv is broken, and could not be set aside"));
    }
}

/// Gives a new file the permissions of the preferences beside it.
void shareWithUsers(const QString &path)
{
    const QFileInfo preferences(pathOf(QStringLiteral("Preferences Database.vzp")));
    if (preferences.exists())
        QFile::setPermissions(path, preferences.permissions());
}

/// The words in the file; raises an error if it can't be read.
clsCodeWords read(const QString &path)
{
    if (!FileSystem().FileExists(path))
        return {};
    if (QFileInfo(path).size() <= clsTextTable::MostBytes)
        if (clsCodeWords words(mdTextOfTable(FileSystem().ReadFile(path))); words.error().isEmpty())
            return words;
    setAside(path);
    return {};
}

QString cantBeRead(const clsRunTimeError &error)
{
    return QStringLiteral("Codes.csv can't be read: %1").arg(error.description());
}

} // namespace

clsCodeWords mdReadCodeWords()
{
    try {
        return read(pathOf(FileName));
    } catch (const clsRunTimeError &error) {
        UserInterface().tellLine(cantBeRead(error));
        return {};
    }
}

bool mdWriteCodeWords(const QHash<QString, QString> &words)
{
    const QString path = pathOf(FileName);
    clsCodeWords all;
    try {
        all = read(path);
    } catch (const clsRunTimeError &error) {
        // A file that can't be read must not be overwritten.
        mdCustomMessages(cantBeRead(error), QStringLiteral("Codes"));
        return false;
    }
    for (auto word = words.constBegin(); word != words.constEnd(); ++word)
        all.set(word.key(), word.value());
    const bool isNew = !QFileInfo::exists(path);
    // Each byte of the UTF-8 text is passed as one character of the code page.
    if (!WriteTextDocument(mdFromCodePage(all.asCsv()), path, false))
        return false;
    if (isNew)
        shareWithUsers(path);
    return true;
}
