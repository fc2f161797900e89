#pragma once

#include "shell/clsUserInterface.h"
#include "shell/mdLog.h"

/// Asks the user for a folder; empty when none was given.
inline QString GetFolder(const QString &title)
{
    WriteLog(QStringLiteral("Begin Get Folder"));
    const QString folder = UserInterface().chooseFolder(title);
    WriteLog(QStringLiteral("End Get Folder"));
    return folder;
}
