#pragma once

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

/// The screen that the user works at, for a window that stands over no other.
inline QScreen *mdPointerScreen()
{
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? screen : QGuiApplication::primaryScreen();
}
