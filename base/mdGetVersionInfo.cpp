#include "base/mdGetVersionInfo.h"

QString GetVersionInfo()
{
    // The three numbers are the build file's project version.
    return QStringLiteral("%1.%2.%3").arg(ZR3_VERSION_MAJOR).arg(ZR3_VERSION_MINOR).arg(ZR3_VERSION_REVISION);
}
