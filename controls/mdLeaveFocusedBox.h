#pragma once

#include <Qt>

class QWidget;

// A typed box with an invalid text holds the focus, as does any other clsHoldingBox. Taking the focus back isn't
// enough: a mouse click presses a button even if its focus was taken away, and mnemonics and default keys press one
// that never had the focus.
//
// So while such a box has the focus, an application-wide filter watches for a mouse press on anything in the same
// window that would take the focus or is a button, and for a button's mnemonic. It first calls the box's leave(), and
// discards the event if the box keeps the focus. Return in a box does the same before it reaches the default button.
// The Cancel button is no exception. Scroll bars, menus and the box's own parts are not affected; Esc and the close box
// reach the window.
//
// Menu entries and other actions don't move the focus and need not leave the box (Ctrl+S saves the claim without the
// pending text). Those that close a screen or read its boxes call `mdLeaveFocusedBox` themselves.

/// Makes the focused box of a window, if it can hold, normalise its text as if the focus were about to move. False if
/// the box keeps the focus because its text is invalid: the box shows this and the caller must stop. Call at the start
/// of Save, Close, Prev, Next and everything else that reads the boxes of a screen; repeated calls do no harm if the
/// text is valid.
bool mdLeaveFocusedBox(const QWidget *window);

/// Whether a focus change for that reason is only an interruption by a menu or another window: the focus returns, and
/// no box was left.
bool mdIsInterruption(Qt::FocusReason reason);

/// Installs the application-wide filter; called by every box that can hold, effective once.
void mdGuardFocusedBoxes();
