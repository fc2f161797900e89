#include "base/mdStateFile.h"

#include "base/mdOwnFolder.h"
#include "base/mdStateFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

QString pathOf(const QString &name)
{
    return StateFolder() + u'/' + name;
}

} // namespace

QByteArray mdReadStateFile(const QString &name)
{
    QFile file(pathOf(name));
    // Reading a pipe would never end.
    if (!QFileInfo(file).isFile() || LeadsOverForeignLink(file.fileName()) || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

std::optional<QJsonObject> mdReadStateObject(const QString &name)
{
    const QByteArray content = mdReadStateFile(name);
    if (content.isEmpty())
        return QJsonObject();
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

bool mdWriteStateFile(const QString &name, const QByteArray &content)
{
    if (!MakeStateFolder() || LeadsOverForeignLink(pathOf(name)))
        return false;
    QSaveFile file(pathOf(name));
    return file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        && file.write(content) == content.size() && file.commit();
}

void mdSetStateFileAside(const QString &name)
{
    const QString aside = pathOf(name) + QStringLiteral(".broken");
    QFile::remove(aside);
    QFile::rename(pathOf(name), aside);
}
