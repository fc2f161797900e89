#include "editors/mdEditItem.h"

#include "controls/mdShowModal.h"
#include "editors/frmScreen.h"

bool mdEditItem(
    QWidget *owner, const clsScreen &editor, clsXMLRecord *item, const std::function<void(frmScreen &screen)> &prepare)
{
    frmScreen screen(editor, owner ? owner->window() : nullptr);
    screen.Initialise(item);
    if (prepare)
        prepare(screen);
    mdShowModal(screen);
    return screen.result() == QDialog::Accepted;
}
