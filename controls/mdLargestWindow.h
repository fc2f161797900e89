#pragma once

#include <QScreen>

/// The largest size of a window over another: leaves a margin on its screen.
inline QSize mdLargestWindow(const QScreen &screen)
{
    return screen.availableGeometry().size() * 0.94;
}
