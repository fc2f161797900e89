#include "shell/frmMain.h"

#include "editors/mdEditCostsLimit.h"
#include "formdata/mdGlobals.h"
#include "shell/clsWhyOpener.h"

// Figures in the main window: how they are computed, where to change them, and the costs limit.

void frmMain::WhyThisFigure()
{
    m_why->AskPreview();
}

void frmMain::CostsLimit()
{
    if (Form)
        whileModal([this] { mdEditCostsLimit(this); });
}
