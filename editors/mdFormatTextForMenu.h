#pragma once

#include <QString>

/// A text as the caption of a menu entry: "&" doesn't mark a mnemonic, and a lone "-" is not a separator.
inline QString mdFormatTextForMenu(const QString &text)
{
    if (text == QLatin1String("-"))
        return QString(QChar(0x2014));
    return QString(text).replace(u'&', QLatin1String("&&"));
}
