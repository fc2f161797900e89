#pragma once

#include <QFile>

/// A file's name, cut at its end to so many bytes of the file system, and in no character.
inline QString mdShortenedName(QString name, qsizetype most)
{
    while (QFile::encodeName(name).size() > most)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return name;
}
