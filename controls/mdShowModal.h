#pragma once

class QDialog;
class QWidget;

/// The window that the user has in front, or had before another program came there: the innermost modal one, the main
/// window, or the splash while there is no main window. Nothing before the splash.
QWidget *mdWindowInFront();

/// Shows a window modally over the one in front, centred on it and no larger than the screen has room for, and returns
/// its result when it is closed. The window below is veiled meanwhile. Where there is none, it is centred on the
/// screen.
int mdShowModal(QDialog &form);
