#pragma once

#include <functional>

class QAbstractButton;
class QKeyEvent;

/// What the keys do on a button that stands in a row: Left, Right, Home and End ask for a neighbour (-1 for the one
/// before, 1 for the next, less or more for the ends), Enter clicks. Up and Down are left to the window. False for any
/// other key, which is the button's own.
bool mdTakeRowKey(QAbstractButton &button, QKeyEvent &event, const std::function<void(int steps)> &move);
