#include "shell/mdOpenPanels.h"

#include "base/mdStateFile.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr char FileName[] = "Panels.json";

QJsonObject panels()
{
    const QByteArray content = mdReadStateFile(QString::fromLatin1(FileName));
    const QJsonDocument document = QJsonDocument::fromJson(content);
    // Nothing is lost by it but which panels were open.
    if (!content.isEmpty() && !document.isObject())
        mdSetStateFileAside(QString::fromLatin1(FileName));
    return document.object();
}

} // namespace

bool mdIsPanelLeftOpen(const QString &panel)
{
    return panels().value(panel).toBool();
}

void mdKeepPanelOpen(const QString &panel, bool open)
{
    QJsonObject all = panels();
    all.insert(panel, open);
    mdWriteStateFile(QString::fromLatin1(FileName), QJsonDocument(all).toJson());
}
