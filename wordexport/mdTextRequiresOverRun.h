#pragma once

#include <QString>

/// True when a text is longer than its box holds, in characters.
inline bool mdTextRequiresOverRun(const QString &text, int limit)
{
    return text.size() > limit;
}
