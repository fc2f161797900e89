#include "shell/mdRunTimeErrorMessage.h"

#include "shell/mdFileHandling.h"

QString mdRunTimeErrorMessage(const clsRunTimeError &error, const QString &recoveredCopy)
{
    const QString paragraph = QStringLiteral("\r\n\r\n");
    const QString text = QStringLiteral("Run-time error '%1':").arg(error.number()) + paragraph + error.description();
    if (!recoveredCopy.isEmpty())
        return text + paragraph + QStringLiteral("A copy of your claim with its unsaved changes is in:") + paragraph
            + recoveredCopy;
    if (FormNeedsRecovery())
        return text + paragraph + QStringLiteral("The unsaved changes to your claim could not be written to a copy.");
    return text;
}
