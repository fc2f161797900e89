#pragma once

class QDialog;
class QWidget;

/// The window in front, or last in front before another program came there: the innermost modal one, the main window,
/// or the splash while there is no main window. Null before the splash.
QWidget *mdWindowInFront();

/// Shows a window modally over the one in front, centred on it and limited to the size of the screen, and returns its
/// result when it is closed. The window below is veiled meanwhile. Without a window below, it is centred on the screen.
int mdShowModal(QDialog &form);
