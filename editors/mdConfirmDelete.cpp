#include "editors/mdConfirmDelete.h"

#include "base/mdCustomMessages.h"

bool mdConfirmDelete(const QString &what, bool many)
{
    const QString question = many ? QStringLiteral("Are you sure you wish to delete the selected ")
                                  : QStringLiteral("Are you sure you wish to delete this ");
    return mdCustomMessages(question + what + u'?', QStringLiteral("Delete?"), clsUserInterface::YesNo, 1)
        == clsUserInterface::Yes;
}
