#include "controls/oStripItem.h"

#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"

#include <QKeyEvent>
#include <QPainter>

#include <limits>

namespace {

constexpr int Padding = 7;
constexpr int SignSide = 14;

} // namespace

oStripItem::oStripItem(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_Hover);
}

int oStripItem::padding()
{
    return Theme::scaled(Padding);
}

int oStripItem::signSide()
{
    return Theme::scaled(SignSide);
}

void oStripItem::keyPressEvent(QKeyEvent *event)
{
    constexpr int toTheEnd = std::numeric_limits<int>::max() / 2;
    switch (event->key()) {
    case Qt::Key_Left: emit Move(-1); return;
    case Qt::Key_Right: emit Move(1); return;
    case Qt::Key_Home: emit Move(-toTheEnd); return;
    case Qt::Key_End: emit Move(toTheEnd); return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            click();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: event->ignore(); return; // the base class would move to the widget above or below
    default: QAbstractButton::keyPressEvent(event);
    }
}

void oStripItem::paintState(QPainter &painter) const
{
    if (underMouse() && isEnabled()) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::Hover);
        painter.drawRoundedRect(rect(), Theme::ControlCorner, Theme::ControlCorner);
        painter.restore();
    }
    if (hasFocus())
        mdPaintRing(painter, rect(), Theme::Purple);
}
