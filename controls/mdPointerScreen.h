#pragma once

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

/// The screen with the pointer, for a window without one below it.
inline QScreen *mdPointerScreen()
{
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? screen : QGuiApplication::primaryScreen();
}
