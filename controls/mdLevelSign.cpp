#include "controls/mdLevelSign.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"

#include <QPainter>
#include <QPainterPath>

namespace {

QRectF inset(const QRectF &square, double part)
{
    const double by = square.width() * part;
    return square.adjusted(by, by, -by, -by);
}

void paintTriangle(QPainter &painter, const QRectF &square)
{
    QPainterPath path;
    path.moveTo(square.center().x(), square.top() + 1);
    path.lineTo(square.right() - 0.5, square.bottom() - 1);
    path.lineTo(square.left() + 0.5, square.bottom() - 1);
    path.closeSubpath();
    painter.setPen(QPen(Theme::Amber, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Theme::Orange);
    painter.drawPath(path);
    mdPaintGlyph(painter, inset(square, 0.22).translated(0, square.height() / 7), Glyph::Exclamation, Theme::Ink);
}

} // namespace

void mdPaintLevelSign(QPainter &painter, const QRectF &square, clsLevel level)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    switch (level) {
    case clsLevel::Note:
        painter.setPen(QPen(Theme::Blue, 1.25));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(square.adjusted(0.75, 0.75, -0.75, -0.75));
        mdPaintGlyph(painter, inset(square, 0.2), Glyph::Information, Theme::Blue);
        break;
    case clsLevel::Warning: paintTriangle(painter, square); break;
    case clsLevel::Error:
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::Red);
        painter.drawEllipse(square);
        mdPaintGlyph(painter, inset(square, 0.2), Glyph::Exclamation, Theme::Paper);
        break;
    }
    painter.restore();
}
