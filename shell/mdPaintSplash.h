#pragma once

#include <QSize>

class QPainter;

/// The splash's dimensions, for a 10-point font.
inline constexpr int SplashWidth = 560;
inline constexpr int SplashHeight = 320;
inline constexpr int SplashStripHeight = 44;

/// Draws the background of the splash: ruled purple paper, a strip at the bottom, and a priced bill.
void mdPaintSplash(QPainter &painter, const QSize &size);
