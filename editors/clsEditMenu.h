#pragma once

#include <functional>

class QMenu;
class QWidget;

/// The actions of a window's menu "Edit". An entry without an action is left out.
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
    bool hasCopyKey = true; ///< false if the window itself uses the key
};

/// Creates a window's menu "Edit" from the table of its entries; the window adds it to its menu bar. A focused text box
/// keeps the keys of Undo and Redo for itself.
QMenu *mdMakeEditMenu(QWidget &window, const clsEditCommands &commands);
