#include "controls/mdPaintControls.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace {

constexpr double FocusWidth = 2;

bool isInvalid(const QWidget *widget)
{
    return widget && widget->property("invalid").toBool();
}

struct clsBoxLook {
    QColor back;
    QColor edge;
    double width;
};

clsBoxLook boxLook(const QStyleOption &option, bool invalid)
{
    // A disabled box may have an invalid value too, which must be visible.
    if (invalid)
        return {Theme::Pink, Theme::Red, FocusWidth};
    if (!(option.state & QStyle::State_Enabled))
        return {Theme::Canvas, Theme::EdgeOff, 1};
    if (option.state & QStyle::State_HasFocus)
        return {Theme::Paper, Theme::Purple, FocusWidth};
    return {Theme::Paper, option.state & QStyle::State_MouseOver ? Theme::Purple : Theme::Edge, 1};
}

} // namespace

void mdPaintBox(QPainter &painter, const QRectF &rectangle, const QColor &back, const QColor &edge, double width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, width));
    painter.setBrush(back);
    const double inset = width / 2;
    const double corner = Theme::ControlCorner - inset;
    painter.drawRoundedRect(rectangle.adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

void mdPaintRing(QPainter &painter, const QRectF &rectangle, const QColor &colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, FocusWidth));
    painter.setBrush(Qt::NoBrush);
    const double inset = FocusWidth / 2;
    const double corner = Theme::FrameCorner - inset;
    painter.drawRoundedRect(rectangle.adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

int mdInvalidSignRoom(const QWidget *widget)
{
    return isInvalid(widget) ? Theme::scaled(16) + Theme::Space8 : 0;
}

void mdPaintTextBox(QPainter &painter, const QStyleOption &option, const QWidget *widget)
{
    const bool invalid = isInvalid(widget);
    const clsBoxLook look = boxLook(option, invalid);
    mdPaintBox(painter, option.rect, look.back, look.edge, look.width);
    if (!invalid)
        return;
    // In a tall box the sign is on the first line.
    const int side = Theme::scaled(16);
    const int line = qMin(option.rect.height(), Theme::boxHeight(option.fontMetrics));
    const QRect sign(option.rect.right() + 1 - Theme::Space8 - side, option.rect.top() + (line - side) / 2, side, side);
    mdPaintGlyph(painter, QStyle::visualRect(option.direction, option.rect, sign), Glyph::Warning, Theme::Red);
}

void mdPaintList(QPainter &painter, const QStyleOptionComboBox &option, const QWidget *widget)
{
    const clsBoxLook look = boxLook(option, isInvalid(widget));
    mdPaintBox(painter, option.rect, look.back, look.edge, look.width);
    const int side = Theme::scaled(14);
    const QRect chevron(option.rect.right() + 1 - Theme::Space8 - side,
        option.rect.top() + (option.rect.height() - side) / 2, side, side);
    mdPaintGlyph(painter, QStyle::visualRect(option.direction, option.rect, chevron), Glyph::ChevronDown,
        option.state & QStyle::State_Enabled ? Theme::Ink2 : Theme::Ink3);
}

void mdPaintTick(QPainter &painter, const QStyleOption &option)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool focused = enabled && (option.state & QStyle::State_HasFocus);
    const QRectF square = option.rect;
    // In a menu there is no room around it.
    const double inset = square.width() < Theme::scaled(20) ? 0 : square.width() / 6;
    const QRectF box = square.adjusted(inset, inset, -inset, -inset);
    if (focused)
        mdPaintBox(painter, square, Theme::Blue, Theme::Blue);
    const bool marked = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const bool purple = marked || (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken));
    const QColor edge = !enabled ? Theme::EdgeOff : focused ? Theme::Paper : purple ? Theme::Purple : Theme::Edge;
    mdPaintBox(painter, box, enabled ? Theme::Paper : Theme::Canvas, edge);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double part = box.width() / 16;
    painter.translate(box.topLeft());
    painter.scale(part, part);
    painter.setPen(QPen(enabled ? Theme::Purple : Theme::Ink3, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (option.state & QStyle::State_On)
        painter.drawPolyline(QPolygonF {{3.8, 8.4}, {6.8, 11.4}, {12.2, 4.8}});
    else if (option.state & QStyle::State_NoChange)
        painter.drawLine(QPointF(4.5, 8), QPointF(11.5, 8));
    painter.restore();
}

void mdPaintTooltip(QPainter &painter, const QStyleOption &option)
{
    painter.fillRect(option.rect, Theme::TooltipBack);
}
