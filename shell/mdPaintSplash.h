#pragma once

#include <QSize>

class QPainter;

/// The measures of the splash for a font of 10 points.
inline constexpr int SplashWidth = 560;
inline constexpr int SplashHeight = 320;
inline constexpr int SplashStripHeight = 44;

/// Draws what lies behind the words of the splash: ruled purple paper, a strip at its foot, and a priced bill.
void mdPaintSplash(QPainter &painter, const QSize &size);
