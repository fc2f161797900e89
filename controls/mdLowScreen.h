#pragma once

#include "controls/mdTheme.h"

#include <QScreen>
#include <QWidget>

/// Whether a widget is on a screen so low that its window has to save margins. Depends on the screen's height, not the
/// window's: many windows are low because they have little content.
inline bool mdIsOnLowScreen(const QWidget &widget)
{
    constexpr int LowScreen = 620;
    return widget.screen()->availableGeometry().height() < Theme::scaled(LowScreen);
}
