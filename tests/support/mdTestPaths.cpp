#include "tests/support/mdTestPaths.h"

QString mdSampleFolder()
{
    return QStringLiteral(ZR3_SAMPLES);
}

QString mdSamplePath(const QString &file)
{
    return mdSampleFolder() + QLatin1Char('/') + file;
}
