#pragma once

#include <functional>

class frmSection;

/// Lets the screen's button "Calculate" write to boxes of the screen: it has the focus when `calculate` is called,
/// however it was pressed.
void mdConnectCalculate(frmSection &screen, std::function<void()> calculate);
