#include "controls/oStripItem.h"

#include "controls/mdPaintControls.h"
#include "controls/mdRowKeys.h"
#include "controls/mdTheme.h"

#include <QPainter>

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
    if (!mdTakeRowKey(*this, *event, [this](int steps) { emit Move(steps); }))
        QAbstractButton::keyPressEvent(event);
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
