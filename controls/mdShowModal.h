#pragma once

#include <functional>

class QDialog;

/// Shows a window modally over the active one, centred on it and no larger than the screen has room for, and returns
/// when it is closed. The window below is veiled meanwhile.
void mdShowModal(QDialog &form);

/// Closes a window and then runs a step. Where mdShowModal waits for the window, the step runs once the wait is over:
/// screens that lead from one to the next thus follow each other and don't pile up, however long the walk.
void mdUnloadAndThen(QDialog &form, std::function<void()> step);
