#include "commands/mdFirmOffer.h"
#include "commands/mdNewFromClaim.h"
#include "editors/mdShowFirmAndTeam.h"
#include "shell/clsJournalKeeper.h"
#include "shell/frmMain.h"

// The firm in the main window: its menu entries, and the line that offers it at the first start.

void frmMain::NewFromClaim()
{
    replaceClaim(NewFromClaimDialog);
}

void frmMain::FirmAndTeam()
{
    whileModal([this] {
        if (mdShowFirmAndTeam(this))
            endFirmOffer();
    });
}

void frmMain::offerFirm()
{
    if (!mdFirmIsToBeOffered())
        return;
    m_journal->setOffer(clsNotice {Sign::Note,
        QStringLiteral("New claims can begin with the details of your firm, its people and counsel."),
        {{QStringLiteral("Firm and Tea&m..."), [this] { FirmAndTeam(); }},
            {QStringLiteral("&Dismiss"), [this] { endFirmOffer(); }}}});
}

void frmMain::endFirmOffer()
{
    mdFirmOfferAnswered();
    m_journal->setOffer({});
}
