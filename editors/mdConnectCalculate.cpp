#include "editors/mdConnectCalculate.h"

#include "controls/oCustomButton.h"
#include "editors/frmScreen.h"

#include <utility>

void mdConnectCalculate(frmScreen &screen, std::function<void()> calculate)
{
    auto &button = screen.Box<oCustomButton>("cmdCalculate");
    QObject::connect(&button, &oCustomButton::Click, &screen, [&button, calculate = std::move(calculate)] {
        // A button pressed by its letter doesn't have the focus yet, and a focused box doesn't format text written to
        // it.
        button.setFocus(Qt::ShortcutFocusReason);
        calculate();
    });
}
