#include "controls/mdGridMetrics.h"

#include "controls/mdTheme.h"

#include <QFontMetrics>

#include <algorithm>

namespace {

constexpr double BasePoints = 10;
constexpr double CellPoints = 8;
constexpr double MarkPoints = 12;

QFont fontOf(double points, bool semibold)
{
    const double base = Theme::font().pointSizeF();
    return Theme::font(points * std::max(1.0, base / BasePoints) - base, semibold);
}

/// Like the grid's fonts, these heights have a minimum; other sizes of the program don't.
int scaledWithFonts(double pixels)
{
    return std::max(qRound(pixels), Theme::scaled(pixels));
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

int mdGridRowHeight()
{
    return std::max(scaledWithFonts(26), QFontMetrics(mdGridMarkFont()).height() + 2);
}

int mdGridHeadingHeight()
{
    return std::max(scaledWithFonts(28), QFontMetrics(mdGridHeadingFont()).height() + Theme::Space8);
}
