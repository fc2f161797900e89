#pragma once

class QDialog;

/// Shows a window modally over the active one, centred on it and no larger than the screen has room for, and returns
/// when it is closed. The window below is veiled meanwhile.
void mdShowModal(QDialog &form);
