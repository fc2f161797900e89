#pragma once

#include <QString>

/// Removes blanks from both ends. Other white space is kept, unlike in the library's trimming.
inline QString mdTrimmedOfBlanks(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == u' ')
        ++first;
    while (last > first && text[last - 1] == u' ')
        --last;
    return text.mid(first, last - first);
}
