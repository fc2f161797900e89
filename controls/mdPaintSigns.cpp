#include "controls/mdPaintSigns.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"

#include <QPainter>
#include <QPainterPath>

void mdPaintErrorSign(QPainter &painter, const QRectF &square)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::Red);
    painter.drawEllipse(square);
    const double inset = square.width() / 5;
    mdPaintGlyph(painter, square.adjusted(inset, inset, -inset, -inset), Glyph::Exclamation, Theme::Paper);
    painter.restore();
}

void mdPaintWarningSign(QPainter &painter, const QRectF &square)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::AmberInk, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Theme::Orange);
    const QRectF inside = square.adjusted(0.5, 1, -0.5, -1);
    painter.drawPolygon(
        QPolygonF({QPointF(inside.center().x(), inside.top()), inside.bottomRight(), inside.bottomLeft()}));
    const double inset = square.width() / 3.6;
    mdPaintGlyph(painter, square.adjusted(inset, inset * 1.35, -inset, -inset * 0.65), Glyph::Exclamation, Theme::Ink);
    painter.restore();
}
