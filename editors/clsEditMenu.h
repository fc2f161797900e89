#pragma once

#include <functional>

class QMenu;
class QWidget;

/// What the entries of the menu "Edit" do in a window. What a window leaves out it doesn't offer.
struct clsEditCommands {
    std::function<void()> undo;
    std::function<void()> redo;
    std::function<void()> paste {};
    std::function<void()> import {};
    std::function<void()> copyList {};
    std::function<void()> sameAgain {};
    std::function<void()> bringBack {};
    std::function<bool()> canBringBack {};
    std::function<void()> find {};
    std::function<void()> changeSelected {};
    std::function<bool()> canChangeSelected {};
    bool hasCopyKey = true; ///< whether no key of the window's own stands in the way
};

/// Makes the menu "Edit" of a window from the table of its entries, for the window to put into its bar. A text box
/// keeps the keys of undo and redo to itself while it has the focus.
QMenu *mdMakeEditMenu(QWidget &window, const clsEditCommands &commands);
