#pragma once

#include "controls/mdTheme.h"

#include <QScreen>
#include <QWidget>

/// Whether a widget stands on a screen so low that its window has to save on its edges. The screen's height counts and
/// not the window's: many windows are low because they hold little.
inline bool mdIsOnLowScreen(const QWidget &widget)
{
    constexpr int LowScreen = 620;
    return widget.screen()->availableGeometry().height() < Theme::scaled(LowScreen);
}
