#pragma once

#include <functional>

class QMainWindow;

/// Adds the menu "Edit" after the first menu of the main window. `showTurned` shows the claim after Undo or Redo,
/// `bringBack` restores text that was typed but not stored.
void mdAddEditMenu(
    QMainWindow &window, const std::function<void()> &showTurned, const std::function<void()> &bringBack);
