#include "controls/mdTheme.h"

#include <QApplication>
#include <QFontInfo>

namespace {

double pointSize(const QFont &font)
{
    // A font sized in pixels has no point size.
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

} // namespace

QFont Theme::font(double morePoints, bool semibold)
{
    QFont result = QApplication::font();
    result.setPointSizeF(pointSize(result) + morePoints);
    if (semibold)
        result.setWeight(QFont::DemiBold);
    return result;
}

int Theme::scaled(double pixels)
{
    return qRound(pixels * pointSize(QApplication::font()) / 10);
}

int Theme::boxHeight(const QFontMetrics &metrics)
{
    return qMax(metrics.height() + 12, scaled(30));
}
