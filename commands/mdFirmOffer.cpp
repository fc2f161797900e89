#include "commands/mdFirmOffer.h"

#include "base/mdStateFile.h"
#include "commands/mdFirmFile.h"

namespace {

const QString FileName = QStringLiteral("Firm offer answered");

} // namespace

bool mdFirmIsToBeOffered()
{
    return mdReadStateFile(FileName).isEmpty() && !mdHasFirm();
}

void mdFirmOfferAnswered()
{
    // If this fails, the next start offers it again.
    mdWriteStateFile(FileName, QByteArrayLiteral("yes\n"));
}
