#pragma once

class QWidget;

/// Whether a window has to save on its height: it is lower than what a usual screen has, and lower than it would like
/// to be. A window that is low because it holds little saves nothing.
bool mdIsLowWindow(const QWidget *window);

/// Tells the height that a window would like to have.
void mdSetNaturalHeight(QWidget &window, int height);
