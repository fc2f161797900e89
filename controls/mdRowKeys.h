#pragma once

#include <functional>

class QAbstractButton;
class QKeyEvent;

/// Handles the keys of a button in a row: Left, Right, Home and End call `move` (-1 for the previous button, 1 for the
/// next, less or more for the ends), Enter clicks. Up and Down are ignored, so that the window gets them. False for any
/// other key.
bool mdTakeRowKey(QAbstractButton &button, QKeyEvent &event, const std::function<void(int steps)> &move);
