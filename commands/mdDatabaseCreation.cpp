#include "commands/mdDatabaseCreation.h"

#include "base/clsUserInterface.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetFolder.h"
#include "base/mdGetResourceData.h"
#include "base/mdTextDocumentHandling.h"

#include <QDir>

void CreateDatabases()
{
    const QString folder = GetFolder(QStringLiteral("Please select or create a database folder"));
    if (folder.isEmpty())
        return;
    WriteTextDocument(GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")),
        QDir(folder).filePath(QStringLiteral("Preferences Database.vzp")), true);
    SetDatabasePath(folder);
    UserInterface().systemMessage(QStringLiteral("The databases have been created successfully"),
        QStringLiteral("Databases"), clsUserInterface::Information, clsUserInterface::OKOnly);
}
