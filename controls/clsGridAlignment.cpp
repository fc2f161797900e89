#include "controls/clsGridAlignment.h"

Qt::Alignment mdGridAlignment(clsGridAlignment code)
{
    switch (code) {
    case clsGridAlignment::Centre:
    case clsGridAlignment::CentreWrapped: return Qt::AlignHCenter | Qt::AlignVCenter;
    case clsGridAlignment::Right: return Qt::AlignRight | Qt::AlignVCenter;
    case clsGridAlignment::Left:
    case clsGridAlignment::LeftWrapped: break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

bool mdGridWraps(clsGridAlignment code)
{
    return code == clsGridAlignment::LeftWrapped || code == clsGridAlignment::CentreWrapped;
}
