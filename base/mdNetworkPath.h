#pragma once

#include <QStringView>

/// True for a folder on another machine that is named by that machine: a path that begins with two backslashes, or with
/// two slashes, as such a path reads here. A folder of another machine that is mounted below another name is not
/// caught; that is meant.
inline bool IsNetworkPath(QStringView programFolder)
{
    return programFolder.startsWith(QLatin1String("\\\\")) || programFolder.startsWith(QLatin1String("//"));
}
