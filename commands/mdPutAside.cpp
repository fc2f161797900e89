#include "commands/mdPutAside.h"

#include "base/mdStateFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace {

constexpr char FileName[] = "Put aside.json";

QString fileName()
{
    return QString::fromLatin1(FileName);
}

std::optional<QJsonObject> claims()
{
    return mdReadStateObject(fileName());
}

QString nameOf(const QString &claim)
{
    return QFileInfo(claim).absoluteFilePath();
}

} // namespace

clsPutAside mdReadPutAside(const QString &claim)
{
    clsPutAside result;
    const auto all = claims();
    if (!all) {
        mdSetStateFileAside(fileName());
        result.wasBroken = true;
    } else if (!claim.isEmpty()) {
        for (const auto &key : all->value(nameOf(claim)).toArray())
            result.keys << key.toString();
    }
    return result;
}

bool mdKeepPutAside(const QString &claim, const QSet<QString> &keys)
{
    if (claim.isEmpty())
        return false;
    // Read again: another window may have changed the entry of another claim meanwhile.
    QJsonObject all = claims().value_or(QJsonObject());
    QStringList sorted(keys.begin(), keys.end());
    std::sort(sorted.begin(), sorted.end());
    if (sorted.isEmpty())
        all.remove(nameOf(claim));
    else
        all.insert(nameOf(claim), QJsonArray::fromStringList(sorted));
    return mdWriteStateFile(fileName(), QJsonDocument(all).toJson());
}
