#include "editors/mdConnectCalculate.h"

#include "controls/oCustomButton.h"
#include "editors/frmSection.h"

#include <utility>

void mdConnectCalculate(frmSection &screen, std::function<void()> calculate)
{
    auto &button = screen.Box<oCustomButton>("cmdCalculate");
    QObject::connect(&button, &oCustomButton::Click, &screen, [&button, calculate = std::move(calculate)] {
        // Pressed by its letter the button hasn't the focus yet, and a box that has it doesn't format what is written.
        button.setFocus(Qt::ShortcutFocusReason);
        calculate();
    });
}
