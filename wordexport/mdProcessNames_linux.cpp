#include "wordexport/mdWordAlreadyRunning.h"

#include "base/clsRunTimeError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char *ProcessFolder = "/proc";

// The process's executable if this user may read it, which is exact; for other users' processes the name, cut at
// fifteen characters.
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

/// The parent of a process; 0 if unknown.
qint64 parentOf(const QString &process)
{
    QFile stat(process + QLatin1String("/stat"));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    // "PID (NAME) STATE PARENT ..."; the name can contain any character.
    const QByteArray line = stat.readAll();
    return line.mid(line.lastIndexOf(')') + 1).simplified().split(' ').value(1).toLongLong();
}

/// True for a process started by this program, directly or indirectly.
bool isOwn(const QDir &folder, const QString &process)
{
    constexpr int Generations = 100; // a limit in case they change during the loop
    qint64 parent = parentOf(folder.filePath(process));
    for (int i = 0; i < Generations && parent > 1; ++i) {
        if (parent == QCoreApplication::applicationPid())
            return true;
        parent = parentOf(folder.filePath(QString::number(parent)));
    }
    return false;
}

} // namespace

QStringList mdProcessNames()
{
    const QDir folder(QString::fromLatin1(ProcessFolder));
    const QStringList entries = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QStringList names;
    for (const QString &entry : entries)
        if (!entry.isEmpty() && entry[0].isDigit() && !isOwn(folder, entry))
            names += namesOf(folder.filePath(entry));
    // This program is running itself, so an empty list means that the list could not be read.
    if (names.isEmpty())
        throw clsRunTimeError(clsRunTimeError::PathNotFound);
    return names;
}
