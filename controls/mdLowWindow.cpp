#include "controls/mdLowWindow.h"

#include "controls/mdTheme.h"

#include <QVariant>
#include <QWidget>

namespace {

constexpr int LowWindow = 620;
constexpr char NaturalHeight[] = "naturalHeight";

} // namespace

bool mdIsLowWindow(const QWidget *window)
{
    const QVariant natural = window->property(NaturalHeight);
    return window->height() < Theme::scaled(LowWindow) && (!natural.isValid() || window->height() < natural.toInt());
}

void mdSetNaturalHeight(QWidget &window, int height)
{
    window.setProperty(NaturalHeight, height);
}
