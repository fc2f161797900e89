#pragma once

#include <QScreen>

/// The largest size of a window that lies over another one: it leaves an edge of its screen free.
inline QSize mdLargestWindow(const QScreen &screen)
{
    return screen.availableGeometry().size() * 0.94;
}
