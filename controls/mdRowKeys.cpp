#include "controls/mdRowKeys.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <limits>

bool mdTakeRowKey(QAbstractButton &button, QKeyEvent &event, const std::function<void(int steps)> &move)
{
    constexpr int toTheEnd = std::numeric_limits<int>::max() / 2;
    switch (event.key()) {
    case Qt::Key_Left: move(-1); return true;
    case Qt::Key_Right: move(1); return true;
    case Qt::Key_Home: move(-toTheEnd); return true;
    case Qt::Key_End: move(toTheEnd); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A held key opens the screen only once.
        if (!event.isAutoRepeat())
            button.click();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down: event.ignore(); return true; // the base class would move to the nearest button above or below
    default: return false;
    }
}
