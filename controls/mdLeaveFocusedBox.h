#pragma once

#include <Qt>

class QWidget;

// A typed box whose text doesn't fit holds the user, as does any other clsHoldingBox. Taking the focus back isn't
// enough for that: a button is pressed by the mouse although its focus was taken away, by its mnemonic and by a default
// key without having had the focus at all.
//
// So while such a box has the focus, the application is watched: a mouse press on anything of the same window that
// would take the focus or is a button, and the mnemonic of a button, first make the box leave, and are swallowed when
// it holds. Return in a box does the same before it reaches the default button. Cancel's button is a button as any
// other. Free are scroll bars, menus and the box's own parts; Esc and the close box reach the window unhindered.
//
// Menu entries and other actions don't move the focus and may mean something else than leaving (Ctrl+S saves the claim
// as it stands). What closes a screen or reads its boxes from there asks `mdLeaveFocusedBox` itself.

/// Makes the box that has the focus of a window, if it can hold, normalise its text as if the focus were about to move.
/// False when it holds: its text doesn't fit, it shows or tells that, and whoever asked is to stop. To be called at the
/// start of Save, Close, Prev, Next and whatever else reads the boxes of a screen; a second call does no harm where the
/// box lets go.
bool mdLeaveFocusedBox(const QWidget *window);

/// Whether a focus that goes or comes for that reason is only interrupted, by a menu or another window: it comes back
/// to where it was, and no box was left.
bool mdIsInterruption(Qt::FocusReason reason);

/// Lets the application be watched; called by every box that can hold, and once is enough.
void mdGuardFocusedBoxes();
