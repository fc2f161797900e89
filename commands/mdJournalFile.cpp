#include "commands/mdJournalFile.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdClock.h"
#include "base/mdOwnFolder.h"
#include "base/mdStateFolder.h"
#include "commands/mdTypedTextsJson.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

namespace {

// "Velmor ZR3 journal 1", the sizes of the head and of the claim, and the mark of both; then both.
constexpr char Begin[] = "Velmor ZR3 journal 1";
constexpr qsizetype LongestFirstLine = 200;

QByteArray markOf(QByteArrayView head, QByteArrayView claim)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(head);
    hash.addData(claim);
    return hash.result().toHex();
}

QByteArray bytesOf(const clsJournalHead &head)
{
    QJsonArray typed;
    for (const clsTypedTexts &texts : head.typed)
        typed.append(TypedTextsObject(texts));
    const QJsonObject object {{QStringLiteral("claim"), head.claim},
        {QStringLiteral("known"), QString::fromLatin1(head.known)},
        {QStringLiteral("changed"), head.changed.toUTC().toString(Qt::ISODateWithMs)},
        {QStringLiteral("process"), double(head.process)}, {QStringLiteral("machine"), head.machine},
        {QStringLiteral("typed"), typed}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

clsJournalHead headOf(const QJsonObject &object)
{
    clsJournalHead head;
    head.claim = object[QStringLiteral("claim")].toString();
    head.known = object[QStringLiteral("known")].toString().toLatin1();
    head.changed = QDateTime::fromString(object[QStringLiteral("changed")].toString(), Qt::ISODateWithMs);
    head.process = qint64(object[QStringLiteral("process")].toDouble());
    head.machine = object[QStringLiteral("machine")].toString();
    for (const auto &texts : object[QStringLiteral("typed")].toArray())
        head.typed.push_back(TypedTextsOf(texts.toObject()));
    return head;
}

QString partOf(const QString &journal)
{
    return journal + QStringLiteral(".part");
}

} // namespace

clsJournalHead NewJournalHead()
{
    clsJournalHead head;
    head.changed = Now();
    head.process = QCoreApplication::applicationPid();
    head.machine = QSysInfo::machineHostName();
    return head;
}

QByteArray JournalBytes(const clsJournalHead &head, const QByteArray &claim)
{
    const QByteArray headBytes = bytesOf(head);
    return Begin + QByteArray(" ") + QByteArray::number(headBytes.size()) + ' ' + QByteArray::number(claim.size()) + ' '
        + markOf(headBytes, claim) + '\n' + headBytes + claim;
}

std::optional<clsJournalContents> ReadJournal(const QByteArray &bytes)
{
    const qsizetype end = bytes.left(LongestFirstLine).indexOf('\n');
    if (end < 0 || !bytes.startsWith(Begin))
        return {};
    const QByteArrayList words = bytes.left(end).split(' ');
    if (words.size() != 7)
        return {};
    const qsizetype headSize = words[4].toLongLong();
    const qsizetype claimSize = words[5].toLongLong();
    const qsizetype rest = bytes.size() - end - 1;
    if (headSize < 0 || headSize > rest || claimSize != rest - headSize)
        return {};
    const QByteArrayView head = QByteArrayView(bytes).sliced(end + 1, headSize);
    const QByteArrayView claim = QByteArrayView(bytes).sliced(end + 1 + headSize);
    if (markOf(head, claim) != words[6])
        return {};
    const QJsonDocument read = QJsonDocument::fromJson(head.toByteArray());
    if (!read.isObject())
        return {};
    return clsJournalContents {headOf(read.object()), claim.toByteArray()};
}

QString JournalFolder()
{
    return StateFolder() + QStringLiteral("/Journal");
}

bool MakeJournalFolder()
{
    return MakeStateFolder() && MakeOwnFolder(JournalFolder());
}

QString JournalLock(const QString &journal)
{
    return journal + QStringLiteral(".lock");
}

void WriteJournal(const QString &journal, const QByteArray &bytes)
{
    const QString part = partOf(journal);
    QFile::remove(part);
    try {
        FileSystem().WriteFile(part, bytes);
        FileSystem().RenameFile(part, journal);
    } catch (...) {
        QFile::remove(part);
        throw;
    }
}

void RemoveJournal(const QString &journal)
{
    for (const QString &file : {journal, partOf(journal), JournalLock(journal)})
        QFile::remove(file);
}
