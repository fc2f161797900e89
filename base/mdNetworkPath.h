#pragma once

#include <QStringView>

/// True for a folder named by its machine: a path that begins with two backslashes, or two slashes, their equivalent
/// here. A mounted network folder is not detected. Required behaviour; do not fix.
inline bool IsNetworkPath(QStringView programFolder)
{
    return programFolder.startsWith(QLatin1String("\\\\")) || programFolder.startsWith(QLatin1String("//"));
}
