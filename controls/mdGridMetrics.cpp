#include "controls/mdGridMetrics.h"

#include "controls/mdTheme.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace {

constexpr double BasePoints = 10;
constexpr double CellPoints = 8;
constexpr double MarkPoints = 12;

QFont fontOf(double points, bool semibold)
{
    const double base = Theme::font().pointSizeF();
    return Theme::font(points * std::max(1.0, base / BasePoints) - base, semibold);
}

} // namespace

QFont mdGridCellFont()
{
    return fontOf(CellPoints, false);
}

QFont mdGridMarkFont()
{
    return fontOf(MarkPoints, false);
}

QFont mdGridHeadingFont()
{
    return fontOf(CellPoints, true);
}

int mdGridScaled(double pixels)
{
    return int(std::lround(pixels * std::max(1.0, Theme::font().pointSizeF() / BasePoints)));
}

int mdGridRowHeight()
{
    return std::max(mdGridScaled(26), QFontMetrics(mdGridMarkFont()).height() + 2);
}

int mdGridHeadingHeight()
{
    return std::max(mdGridScaled(28), QFontMetrics(mdGridHeadingFont()).height() + Theme::Space8);
}
