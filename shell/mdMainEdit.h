#pragma once

#include <functional>

class QMainWindow;

/// Puts the menu "Edit" behind the first menu of the main window. `showTurned` shows the claim after a step was undone
/// or done again, `bringBack` brings back what was typed and not stored.
void mdAddEditMenu(
    QMainWindow &window, const std::function<void()> &showTurned, const std::function<void()> &bringBack);
