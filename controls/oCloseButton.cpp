#include "controls/oCloseButton.h"

#include "controls/mdIcons.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int Side = 28;
constexpr int CrossSide = 14;

} // namespace

oCloseButton::oCloseButton(const QString &what, QWidget *parent)
    : QAbstractButton(parent)
{
    setAccessibleName(what);
    setToolTip(QStringLiteral("Close"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize oCloseButton::sizeHint() const
{
    return {Theme::scaled(Side), Theme::scaled(Side)};
}

void oCloseButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void oCloseButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void oCloseButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void oCloseButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (isDown() || underMouse())
        painter.fillRect(rect(), isDown() ? Theme::Selected : Theme::Hover);
    const double side = Theme::scaled(CrossSide);
    mdPaintGlyph(painter, QRectF((width() - side) / 2, (height() - side) / 2, side, side), Glyph::Cross, Theme::Ink);
    if (hasFocus())
        mdPaintRing(painter, rect(), Theme::Purple);
}
