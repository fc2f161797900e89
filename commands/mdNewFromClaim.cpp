#include "commands/mdNewFromClaim.h"

#include "base/clsRunTimeError.h"
#include "base/mdCustomMessages.h"
#include "base/mdTextDocumentHandling.h"
#include "commands/mdFileHandling.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdClaimSetup.h"

#include <QDir>

namespace {

bool isClaim(clsZR3Form &form, const QByteArray &text)
{
    try {
        return form.LoadText(text);
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// Reads the claim at a path; false after a message.
bool readClaim(clsZR3Form &form, const QString &path)
{
    int failure = 0;
    const QByteArray text = ReadTextDocumentAsUtf8(path, true, &failure);
    if (failure != 0)
        return false;
    if (isClaim(form, text))
        return true;
    mdCustomMessages(QStringLiteral("No new claim was begun, since this file is no valid ZR3 file:\r\n\r\n")
            + QDir::toNativeSeparators(path) + QStringLiteral("\r\n\r\nThe open claim is as it was."),
        QStringLiteral("New From Claim"));
    return false;
}

} // namespace

void NewFromClaimDialog()
{
    if (!ConfirmDrop())
        return;
    const QString path = ChooseClaim();
    if (clsZR3Form source; !path.isEmpty() && readClaim(source, path))
        BeginForm([&source](clsZR3Form &form) {
            form.FormType.setContent(source.FormType.content());
            mdCopySetup(source, form);
        });
}
