#include "shell/mdRunTimeErrorMessage.h"

#include "shell/mdFileHandling.h"

namespace {

const QString Paragraph = QStringLiteral("\r\n\r\n");

}

QString mdRecoveredCopyMessage(const QString &recoveredCopy)
{
    if (!recoveredCopy.isEmpty())
        return QStringLiteral("A copy of your claim with its unsaved changes is in:") + Paragraph + recoveredCopy;
    if (FormNeedsRecovery())
        return QStringLiteral("The unsaved changes to your claim could not be written to a copy.");
    return {};
}

QString mdRunTimeErrorMessage(const clsRunTimeError &error, const QString &recoveredCopy)
{
    QString text = QStringLiteral("Run-time error '%1':").arg(error.number()) + Paragraph + error.description();
    if (!error.cause().isEmpty())
        text += Paragraph + error.cause();
    const QString copy = mdRecoveredCopyMessage(recoveredCopy);
    return copy.isEmpty() ? text : text + Paragraph + copy;
}
