#pragma once

#include "base/clsUserInterface.h"
#include "base/mdLog.h"

/// Asks the user for a folder, starting at `start` if it is given and exists; empty if the user cancels.
inline QString GetFolder(const QString &title, const QString &start = {})
{
    WriteLog(QStringLiteral("Begin Get Folder"));
    const QString folder = UserInterface().chooseFolder(title, start);
    WriteLog(QStringLiteral("End Get Folder"));
    return folder;
}
