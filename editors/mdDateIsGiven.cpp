#include "editors/mdDateIsGiven.h"

#include "controls/oDateBox.h"
#include "editors/mdCheckForBlanks.h"

bool mdDateIsGiven(oDateBox &box)
{
    if (!box.HasDate() || mdCheckForBlanks({box.TypedText()}))
        return true;
    box.setFocus(Qt::TabFocusReason);
    return false;
}
