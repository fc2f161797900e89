#include "base/mdSetProgress.h"

#include "base/clsUserInterface.h"

void mdSetProgress(int value, int maximum, const QString &text, bool inverted)
{
    constexpr int LongRun = 600;
    const int shown = inverted ? maximum - value : value;
    if (shown > 1 && maximum > LongRun && shown % LongRun != 0)
        return;
    UserInterface().showProgress(shown, maximum, text);
}

void mdClearProgress()
{
    UserInterface().clearProgress();
}
