#pragma once

#include <functional>

class frmScreen;

/// Connects the screen's button "Calculate". The button has the focus when `calculate` is called, however it was
/// pressed.
void mdConnectCalculate(frmScreen &screen, std::function<void()> calculate);
