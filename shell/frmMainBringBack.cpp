#include "shell/frmMain.h"

#include "controls/mdShowModal.h"
#include "controls/oFooterBar.h"
#include "editors/frmScreen.h"
#include "editors/mdBringBack.h"
#include "shell/frmCompare.h"

// Offers that protect the user's work: text typed on a screen and not stored, until it is stored, and the differences
// between two states of the claim.

void frmMain::offerNotStored()
{
    const clsTypedTexts *texts = mdLatestNotStored();
    oFooter->showOffer(texts ? mdNotStoredInWords(*texts) : QString(), QStringLiteral("Bring back"));
}

void frmMain::BringBack()
{
    const clsTypedTexts *texts = mdLatestNotStored();
    if (m_sectionOpen || !texts)
        return;
    if (mdIsCostsLimit(*texts)) {
        mdPutBackWhenShown(*this, *texts);
        return CostsLimit();
    }
    m_nextWay = mdWayBack(*texts);
    tbSubSection_Click(-1, mdSectionOfNotStored(*texts));
    m_nextWay = nullptr;
}

void frmMain::compare(const clsComparison &comparison)
{
    frmCompare window(comparison, this);
    whileModal([&window] { mdShowModal(window); });
}
