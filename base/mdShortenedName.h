#pragma once

#include <QFile>

/// Shortens a file name at its end to `most` encoded bytes, without splitting a character.
inline QString mdShortenedName(QString name, qsizetype most)
{
    while (QFile::encodeName(name).size() > most)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return name;
}
