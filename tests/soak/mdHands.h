#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/// The hands of the user: keys go to the window that has them, clicks to what is seen. All of it takes the road of real
/// input through the window system's side of the toolkit, so that a modal window, a popup or a box that holds its user
/// is in the way as it would be on a desk.
namespace Hands {

/// The popup, the modal window or the main window that is in front; nothing while there is none.
QWidget *front();
/// Whether the window in front has the keys; asks for them where it has not, since this platform has no window manager.
bool ready();

void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types letters of the keyboard one by one. Longer texts, and whatever has no key, are pasted.
void type(const QString &text);

/// Whether the point of a widget can be seen and so clicked.
bool canClick(const QWidget &widget, const QPoint &at);
/// A click in the middle of what is seen of a widget; false where nothing is.
bool click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void clickAt(QWidget &widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton,
    Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool twice = false);
/// Turns the wheel over a widget; upwards where positive.
void wheel(QWidget &widget, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace Hands
