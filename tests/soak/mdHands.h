#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/// The user's input: keys go to the focused window, clicks to what is visible. It all goes through Qt's window-system
/// interface like real input, so that a modal window, a popup or a box that holds the focus blocks it as it would on a
/// desktop.
namespace Hands {

/// The popup, the modal window or the main window in front; null if there is none.
QWidget *front();
/// Whether the window in front has the focus; requests it otherwise, since this platform has no window manager.
bool ready();

void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types letters of the keyboard one by one. Longer texts, and characters without a key, are pasted.
void type(const QString &text);

/// Whether a point of a widget is visible and can be clicked.
bool canClick(const QWidget &widget, const QPoint &at);
/// Clicks the middle of a widget's visible part; false if there is none.
bool click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void clickAt(QWidget &widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton,
    Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool twice = false);
/// Turns the wheel over a widget; upwards if positive.
void wheel(QWidget &widget, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace Hands
