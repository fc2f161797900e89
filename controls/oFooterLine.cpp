#include "controls/oFooterLine.h"

#include "controls/mdLine.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"

#include <QAccessible>
#include <QPainter>

#include <chrono>
#include <utility>

namespace {

constexpr int SignSide = 14;

} // namespace

oFooterLine::oFooterLine(QWidget *footer)
    : QWidget(footer)
    , m_button(new oCustomButton(this))
    , m_timer(this)
{
    setObjectName(QStringLiteral("oFooterLine"));
    m_button->setObjectName(QStringLiteral("cmdFooterLine"));
    m_button->setLook(oCustomButton::Look::Small);
    connect(m_button, &oCustomButton::Click, this, &oFooterLine::Taken);
    m_timer.setSingleShot(true);
    m_timer.setInterval(std::chrono::seconds(10));
    connect(&m_timer, &QTimer::timeout, this, &oFooterLine::end);
    hide();
}

void oFooterLine::tell(const QString &line)
{
    m_line = line;
    m_timer.start();
    present();
}

void oFooterLine::offer(const QString &text, const QString &caption)
{
    if (m_offer == text)
        return;
    m_offer = text;
    m_button->setCaption(caption);
    m_button->setAccessibleDescription(text);
    if (m_line.isEmpty())
        present();
}

void oFooterLine::standBack(bool back)
{
    if (std::exchange(m_standsBack, back) != back && m_line.isEmpty())
        setVisible(!back && !m_offer.isEmpty());
}

void oFooterLine::end()
{
    if (underMouse())
        return m_timer.start();
    m_line.clear();
    present();
}

void oFooterLine::present()
{
    const QString line = Line();
    setAccessibleName(line);
    m_button->setVisible(m_line.isEmpty());
    place();
    raise();
    setVisible(!m_line.isEmpty() || (!m_offer.isEmpty() && !m_standsBack));
    update();
    if (line.isEmpty())
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void oFooterLine::setRoom(const QRect &room)
{
    m_room = room;
    place();
}

void oFooterLine::place()
{
    if (!m_line.isEmpty())
        return setGeometry(m_room);
    const QSize button = m_button->sizeHint();
    const int text = QFontMetrics(Theme::font(-1)).horizontalAdvance(m_offer);
    const int needed = left() + text + 2 * Theme::Space12 + button.width() + 1;
    setGeometry(QRect(m_room.topLeft(), QSize(qMin(needed, m_room.width()), m_room.height())));
    const QPoint corner(width() - Theme::Space12 - button.width(), (height() - button.height() + 1) / 2);
    m_button->setGeometry(QRect(corner, button));
}

int oFooterLine::left() const
{
    return Theme::Space16 + int(Theme::scaled(SignSide)) + Theme::Space12;
}

void oFooterLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::InformationTint);
    mdPaintLine(painter, rect(), Qt::TopEdge | Qt::RightEdge, Theme::Line);
    const double side = Theme::scaled(SignSide);
    mdPaintSign(painter, QRectF(Theme::Space16, (height() - side) / 2, side, side), Sign::Note);
    const int right = m_line.isEmpty() ? width() - m_button->x() + Theme::Space12 - 1 : Theme::Space12;
    const QRect room = rect().adjusted(left(), 0, -right, 0);
    painter.setFont(Theme::font(-1));
    painter.setPen(Theme::Ink);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(Line(), Qt::ElideRight, room.width()));
}
