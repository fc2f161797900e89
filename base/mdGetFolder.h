#pragma once

#include "base/clsUserInterface.h"
#include "base/mdLog.h"

/// Asks the user for a folder, beginning at one where it is named and there; empty when none was given.
inline QString GetFolder(const QString &title, const QString &start = {})
{
    WriteLog(QStringLiteral("Begin Get Folder"));
    const QString folder = UserInterface().chooseFolder(title, start);
    WriteLog(QStringLiteral("End Get Folder"));
    return folder;
}
