#include "shell/frmMain.h"

#include "editors/mdEditCostsLimit.h"
#include "formdata/mdGlobals.h"
#include "shell/clsWhyOpener.h"

// The figures in the main window: how they come about, where they can be changed, and the limit that they are held
// against.

void frmMain::WhyThisFigure()
{
    m_why->AskPreview();
}

void frmMain::CostsLimit()
{
    if (Form)
        whileModal([this] { mdEditCostsLimit(this); });
}
