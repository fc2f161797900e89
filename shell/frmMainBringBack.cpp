#include "shell/frmMain.h"

#include "controls/oFooterBar.h"
#include "editors/frmSection.h"
#include "editors/mdBringBack.h"

// What was typed on a screen and not stored: the main window offers it until it is stored after all.

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
    m_nextWay = mdWayBack(*texts);
    tbSubSection_Click(-1, mdSectionOfNotStored(*texts));
    m_nextWay = nullptr;
}
