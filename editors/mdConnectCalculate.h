#pragma once

#include <functional>

class frmSection;

/// Connects the screen's button "Calculate". The button has the focus when `calculate` is called, however it was
/// pressed.
void mdConnectCalculate(frmSection &screen, std::function<void()> calculate);
