#include "editors/mdShowPreferences.h"

#include "controls/mdShowModal.h"
#include "controls/oContentSwitcher.h"
#include "editors/frmSection.h"
#include "editors/mdScreens.h"

void mdShowPreferences(QWidget *owner, int page)
{
    frmSection screen(ScreenPreferences(), owner);
    // Before the screen looks for the field that the focus begins in.
    screen.Switcher().SwitchTo(page);
    screen.Initialise();
    mdShowModal(screen);
}
