#include "controls/mdPaintControls.h"

#include "controls/mdTheme.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

void paintPill(QPainter &painter, const QRectF &rectangle, const QColor &colour)
{
    const double corner = qMin(rectangle.width(), rectangle.height()) / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(rectangle, corner, corner);
    painter.restore();
}

/// The background colour of the page that the bar scrolls.
QColor ground(const QStyleOption &option, const QWidget *bar)
{
    for (const QWidget *widget = bar; widget; widget = widget->parentWidget())
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(widget)) {
            const QWidget *page = area->viewport();
            return page->palette().color(page->backgroundRole());
        }
    return option.palette.color(QPalette::Window);
}

QRectF progressLine(const QRect &rectangle)
{
    const double thickness = Theme::scaled(6);
    return {double(rectangle.left()), rectangle.top() + (rectangle.height() - thickness) / 2, double(rectangle.width()),
        thickness};
}

} // namespace

void mdPaintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &slider, const QWidget *widget)
{
    painter.fillRect(option.rect, ground(option, widget));
    if (option.maximum <= option.minimum)
        return;
    const bool active = (option.activeSubControls & QStyle::SC_ScrollBarSlider)
        && (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken));
    const double thickness = Theme::scaled(6);
    QRectF pill = slider;
    if (option.orientation == Qt::Horizontal)
        pill.adjust(2, (slider.height() - thickness) / 2, -2, -(slider.height() - thickness) / 2);
    else
        pill.adjust((slider.width() - thickness) / 2, 2, -(slider.width() - thickness) / 2, -2);
    paintPill(painter, pill, active ? Theme::Ink2 : Theme::Edge);
}

QRect mdScrollBarSlider(const QStyleOptionSlider &option, int minimum)
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const int room = horizontal ? option.rect.width() : option.rect.height();
    const qint64 range = qint64(option.maximum) - option.minimum;
    int length = room;
    if (range > 0)
        length = qBound(qMin(minimum, room), int(qint64(room) * option.pageStep / (range + option.pageStep)), room);
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, room - length, option.upsideDown);
    return horizontal ? QRect(option.rect.left() + start, option.rect.top(), length, option.rect.height())
                      : QRect(option.rect.left(), option.rect.top() + start, option.rect.width(), length);
}

void mdPaintProgressGroove(QPainter &painter, const QStyleOption &option)
{
    paintPill(painter, progressLine(option.rect), Theme::Band);
}

void mdPaintProgress(QPainter &painter, const QStyleOptionProgressBar &option)
{
    const double range = double(option.maximum) - option.minimum;
    if (range <= 0 || option.progress <= option.minimum)
        return;
    QRectF line = progressLine(option.rect);
    line.setWidth(line.width() * qMin(1.0, (option.progress - option.minimum) / range));
    paintPill(painter, line, Theme::Purple);
}

void mdPaintMenuBarItem(QPainter &painter, const QStyleOptionMenuItem &option, bool underline)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool chosen = enabled && (option.state & QStyle::State_Selected);
    const bool open = chosen && (option.state & QStyle::State_Sunken);
    painter.fillRect(option.rect, open ? Theme::Selected : chosen ? Theme::Hover : Theme::Paper);
    painter.setPen(enabled ? Theme::Ink : Theme::Ink3);
    mdPaintCaption(painter, option.rect, Qt::AlignCenter | Qt::TextSingleLine, option.text, underline);
}

void mdPaintTabShape(QPainter &painter, const QStyleOptionTab &option)
{
    if ((option.state & QStyle::State_MouseOver) && (option.state & QStyle::State_Enabled))
        painter.fillRect(option.rect, Theme::Hover);
    if (option.state & QStyle::State_Selected) {
        QRectF line = option.rect;
        line.setTop(line.bottom() - 3);
        paintPill(painter, line.adjusted(Theme::Space12, 0, -Theme::Space12, 0), Theme::Purple);
    }
    if (option.state & QStyle::State_HasFocus)
        mdPaintRing(painter, option.rect, Theme::Purple);
}

void mdPaintTabLabel(QPainter &painter, const QStyleOptionTab &option, bool underline)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool chosen = option.state & QStyle::State_Selected;
    painter.save();
    QFont font = painter.font();
    font.setWeight(chosen ? QFont::DemiBold : QFont::Normal);
    painter.setFont(font);
    painter.setPen(!enabled ? Theme::Ink3 : chosen ? Theme::Purple : Theme::Ink2);
    mdPaintCaption(painter, option.rect, Qt::AlignCenter | Qt::TextSingleLine, option.text, underline);
    painter.restore();
}
