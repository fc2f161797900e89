#include "editors/mdCheckForBlanks.h"

#include "base/mdCustomMessages.h"

bool mdCheckForBlanks(const QStringList &texts)
{
    for (const QString &text : texts) {
        if (!text.isEmpty())
            continue;
        mdCustomMessages(
            QStringLiteral("Please complete all fields marked with a *"), QStringLiteral("Required Fields"));
        return false;
    }
    return true;
}
