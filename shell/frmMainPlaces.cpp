#include "shell/frmMain.h"

#include "editors/frmScreen.h"
#include "editors/mdListPlace.h"
#include "editors/mdWayTo.h"
#include "formdata/clsClaimPlace.h"
#include "shell/mdPageBoxes.h"

// Opens places on screens from the main window.

void frmMain::OpenField(const QString &target)
{
    clsTargetPlace place;
    if (m_sectionOpen || !mdFindTarget(target, place))
        return;
    m_nextWay = [place](frmScreen &screen) { mdEnterPlace(screen, place.control, place.item); };
    tbSubSection_Click(-1, place.section);
    m_nextWay = nullptr;
}

void frmMain::OpenPlace(const clsClaimPlace &place)
{
    if (m_sectionOpen)
        return;
    m_nextWay = mdWayTo(place);
    tbSubSection_Click(-1, place.Screen);
    m_nextWay = nullptr;
}
