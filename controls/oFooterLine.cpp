#include "controls/oFooterLine.h"

#include "controls/mdLine.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"

#include <QAccessible>
#include <QPainter>

#include <chrono>

namespace {

constexpr int SignSide = 14;

} // namespace

oFooterLine::oFooterLine(QWidget *footer)
    : QWidget(footer)
    , m_timer(this)
{
    setObjectName(QStringLiteral("oFooterLine"));
    m_timer.setSingleShot(true);
    m_timer.setInterval(std::chrono::seconds(10));
    connect(&m_timer, &QTimer::timeout, this, &oFooterLine::end);
    hide();
}

void oFooterLine::tell(const QString &line)
{
    m_line = line;
    setAccessibleName(line);
    m_timer.start();
    raise();
    show();
    update();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void oFooterLine::end()
{
    if (underMouse())
        return m_timer.start();
    hide();
}

void oFooterLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::InformationTint);
    mdPaintLine(painter, rect(), Qt::TopEdge | Qt::RightEdge, Theme::Line);
    const double side = Theme::scaled(SignSide);
    mdPaintSign(painter, QRectF(Theme::Space16, (height() - side) / 2, side, side), Sign::Note);
    const QRect room = rect().adjusted(Theme::Space16 + int(side) + Theme::Space12, 0, -Theme::Space12, 0);
    painter.setFont(Theme::font(-1));
    painter.setPen(Theme::Ink);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_line, Qt::ElideRight, room.width()));
}
