#pragma once

#include <QString>

/// A text without the blanks at its ends. Other white space belongs to the text, unlike what the library's own trimming
/// takes for blank.
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
