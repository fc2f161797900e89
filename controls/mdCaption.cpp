#include "controls/mdCaption.h"

QString mdPlainCaption(const QString &caption)
{
    QString result;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        // A doubled ampersand means a literal one.
        if (caption[i] == u'&' && ++i == caption.size())
            break;
        result += caption[i];
    }
    return result;
}

QString mdSpokenCaption(const QString &caption)
{
    QString result = caption.trimmed();
    while (result.endsWith(u':') || result.endsWith(u'*'))
        result.chop(1);
    return result.trimmed();
}
