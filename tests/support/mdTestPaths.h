#pragma once

#include <QString>

/// A file of the sample claims, each with the figures and the sheets that must come of it.
inline QString mdSamplePath(const QString &file)
{
    return QStringLiteral(ZR3_SAMPLES "/") + file;
}
