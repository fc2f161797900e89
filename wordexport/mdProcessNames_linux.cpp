#include "wordexport/mdWordAlreadyRunning.h"

#include "base/clsRunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char *ProcessFolder = "/proc";

// The program's own file where this user may ask for it, which is exact; a process of somebody else still tells
// its name, cut at fifteen characters.
QStringList namesOf(const QString &process)
{
    QStringList names;
    const QString program = QFile::symLinkTarget(process + QLatin1String("/exe"));
    if (!program.isEmpty())
        names << QFileInfo(program).fileName();
    QFile comm(process + QLatin1String("/comm"));
    if (comm.open(QIODevice::ReadOnly)) {
        const QString name = QString::fromUtf8(comm.readAll()).trimmed();
        if (!name.isEmpty())
            names << name;
    }
    return names;
}

} // namespace

QStringList mdProcessNames()
{
    const QDir folder(QString::fromLatin1(ProcessFolder));
    const QStringList entries = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QStringList names;
    for (const QString &entry : entries)
        if (!entry.isEmpty() && entry[0].isDigit())
            names += namesOf(folder.filePath(entry));
    // This program runs itself, so that an empty list is a list that could not be read.
    if (names.isEmpty())
        throw clsRunTimeError(clsRunTimeError::PathNotFound);
    return names;
}
