#include "controls/mdSigns.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"

#include <QPainter>
#include <QPainterPath>

namespace {

/// The symbols inside a sign are drawn for a side of 20.
constexpr double Side = 20;

void paintDisc(QPainter &painter, const QRectF &square)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::Red);
    painter.drawEllipse(square);
    const double inset = square.width() / 5;
    mdPaintGlyph(painter, square.adjusted(inset, inset, -inset, -inset), Glyph::Exclamation, Theme::Paper);
}

void paintTriangle(QPainter &painter, const QRectF &square)
{
    const double unit = square.width() / Side;
    QPainterPath edge;
    edge.moveTo(square.left() + 10 * unit, square.top() + 2 * unit);
    edge.lineTo(square.left() + 19 * unit, square.top() + 18.5 * unit);
    edge.lineTo(square.left() + 1 * unit, square.top() + 18.5 * unit);
    edge.closeSubpath();
    painter.setPen(QPen(Theme::Amber, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Theme::Orange);
    painter.drawPath(edge);
    const QRectF mark(square.left() + 5 * unit, square.top() + 7 * unit, 10 * unit, 10 * unit);
    mdPaintGlyph(painter, mark, Glyph::Exclamation, Theme::Ink);
}

void paintRing(QPainter &painter, const QRectF &square)
{
    const double width = square.width() / 12;
    painter.setPen(QPen(Theme::Blue, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(square.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    const double inset = square.width() / 5;
    mdPaintGlyph(painter, square.adjusted(inset, inset, -inset, -inset), Glyph::Information, Theme::Blue);
}

} // namespace

void mdPaintSign(QPainter &painter, const QRectF &rectangle, Sign sign)
{
    const double side = qMin(rectangle.width(), rectangle.height());
    const QRectF square(rectangle.center() - QPointF(side, side) / 2, QSizeF(side, side));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    switch (sign) {
    case Sign::Error: paintDisc(painter, square); break;
    case Sign::Warning: paintTriangle(painter, square); break;
    case Sign::Note: paintRing(painter, square); break;
    }
    painter.restore();
}

QPixmap mdSignPixmap(Sign sign, int side, double scale)
{
    QPixmap result(QSize(side, side) * scale);
    result.setDevicePixelRatio(scale);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    mdPaintSign(painter, QRectF(0, 0, side, side), sign);
    return result;
}

void mdPaintDot(QPainter &painter, const QRectF &square, Dot dot)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QPointF middle = square.center();
    switch (dot) {
    case Dot::Empty:
        painter.setPen(QPen(Theme::Edge, 1));
        painter.drawEllipse(square.adjusted(0.5, 0.5, -0.5, -0.5));
        break;
    case Dot::Begun:
        painter.setBrush(Theme::Ink2);
        painter.drawEllipse(square);
        break;
    case Dot::Warnings:
    case Dot::Errors: {
        painter.setBrush(dot == Dot::Errors ? Theme::Red : Theme::Amber);
        // The corners extend a little beyond the square, so that it doesn't look smaller than a disc.
        const double half = square.width() / 2 + 1;
        painter.drawPolygon(QPolygonF({middle - QPointF(0, half), middle + QPointF(half, 0), middle + QPointF(0, half),
            middle - QPointF(half, 0)}));
        break;
    }
    }
    painter.restore();
}
