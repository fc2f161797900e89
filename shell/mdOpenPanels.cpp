#include "shell/mdOpenPanels.h"

#include "base/clsUserInterface.h"
#include "base/mdStateFile.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr char FileName[] = "Panels.json";

QJsonObject panels()
{
    const QByteArray content = mdReadStateFile(QString::fromLatin1(FileName));
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (!content.isEmpty() && !document.isObject()) {
        mdSetStateFileAside(QString::fromLatin1(FileName));
        UserInterface().tellLine(QStringLiteral("Which panels were open could not be read. The file was set aside"));
    }
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
