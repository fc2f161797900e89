#include "shell/mdPaintSplash.h"

#include "controls/mdTheme.h"

#include <QPainter>
#include <QPainterPath>

namespace {

struct clsBar {
    double x, y, width, height;
};

// clang-format off
constexpr clsBar TextLines[] = {
    {378,  94, 74, 5}, {470,  94, 26, 5},
    {378, 108, 60, 5}, {470, 108, 26, 5},
    {378, 122, 80, 5}, {470, 122, 26, 5},
    {378, 136, 52, 5}, {470, 136, 26, 5},
    {378, 150, 70, 5}, {470, 150, 26, 5},
    {378, 164, 64, 5}, {470, 164, 26, 5},
};
constexpr clsBar PurpleBars[] = {
    {378,  68, 62, 9},
    {460, 177, 36, 2},
    {464, 186, 32, 8},
};
// clang-format on

constexpr QRectF Sheet {362, 50, 150, 196};

void paintRules(QPainter &painter)
{
    QColor rule = Theme::Paper;
    rule.setAlpha(28);
    painter.setPen(QPen(rule, 1));
    for (double y = 28; y < SplashHeight; y += 28)
        painter.drawLine(QPointF(0, y), QPointF(SplashWidth, y));
    painter.drawLine(QPointF(330, 0), QPointF(330, SplashHeight));
}

void paintSheetBehind(QPainter &painter, double degrees)
{
    QColor pale = Theme::Paper;
    pale.setAlpha(50);
    painter.save();
    painter.translate(Sheet.center());
    painter.rotate(degrees);
    painter.translate(-Sheet.center());
    painter.setBrush(pale);
    painter.drawRoundedRect(Sheet, 5, 5);
    painter.restore();
}

template <size_t N> void paintBars(QPainter &painter, const clsBar (&bars)[N], const QColor &colour)
{
    painter.setBrush(colour);
    for (const clsBar &bar : bars)
        painter.drawRoundedRect(QRectF(bar.x, bar.y, bar.width, bar.height), 2, 2);
}

void paintTick(QPainter &painter)
{
    painter.setBrush(Theme::Green);
    painter.drawEllipse(QPointF(492, 228), 22, 22);
    QPainterPath tick(QPointF(482, 229));
    tick.lineTo(489, 236);
    tick.lineTo(503, 221);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Theme::Paper, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
}

} // namespace

void mdPaintSplash(QPainter &painter, const QSize &size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(size.width()) / SplashWidth, double(size.height()) / SplashHeight);
    painter.fillRect(QRectF(0, 0, SplashWidth, SplashHeight), Theme::Purple);
    paintRules(painter);
    QColor strip = Theme::Ink;
    strip.setAlpha(70);
    painter.fillRect(QRectF(0, SplashHeight - SplashStripHeight, SplashWidth, SplashStripHeight), strip);

    painter.setPen(Qt::NoPen);
    paintSheetBehind(painter, -5);
    paintSheetBehind(painter, -1.5);
    painter.setBrush(Theme::Paper);
    painter.drawRoundedRect(Sheet, 5, 5);
    paintBars(painter, TextLines, Theme::Line);
    paintBars(painter, PurpleBars, Theme::Purple);
    paintTick(painter);
}
