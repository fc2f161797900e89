#include "editors/oListLine.h"

#include "controls/mdIcons.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oCustomButton.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int Height = 34;
constexpr int SignSize = 14;
constexpr int GlyphSize = 10;
constexpr double RingWidth = 1.5;
constexpr int Patience = 10000; ///< in milliseconds

void paintSign(QPainter &painter, const QRectF &place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::Blue, RingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(place.adjusted(RingWidth / 2, RingWidth / 2, -RingWidth / 2, -RingWidth / 2));
    painter.restore();
    const double size = Theme::scaled(GlyphSize);
    QRectF glyph(0, 0, size, size);
    glyph.moveCenter(place.center());
    mdPaintGlyph(painter, glyph, Glyph::Information, Theme::Blue);
}

} // namespace

oListLine::oListLine(QWidget *parent)
    : QWidget(parent)
    , m_button(new oCustomButton(this))
{
    setObjectName(QStringLiteral("oListLine"));
    m_button->setObjectName(QStringLiteral("cmdListLine"));
    m_button->setLook(oCustomButton::Look::Small);
    m_button->hide();
    connect(m_button, &oCustomButton::Click, this, &oListLine::Taken);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    m_timer.setObjectName(QStringLiteral("tmrListLine"));
    m_timer.setParent(this);
    m_timer.setSingleShot(true);
    m_timer.setInterval(Patience);
    connect(&m_timer, &QTimer::timeout, this, &oListLine::clearWhenFree);
}

void oListLine::Tell(const QString &text)
{
    m_text = text;
    // A tab stop while it shows a message, so that there is time to read it.
    setFocusPolicy(Qt::TabFocus);
    m_timer.start();
    placeButton();
    announce();
}

void oListLine::announce()
{
    setAccessibleName(Text());
    update();
    QAccessibleEvent said(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

void oListLine::Offer(const QString &text, const QString &caption)
{
    if (m_offer == text)
        return;
    m_offer = text;
    m_button->setCaption(caption);
    m_button->setAccessibleDescription(text);
    placeButton();
    if (m_text.isEmpty())
        announce();
}

/// The offer is hidden while there is a message.
void oListLine::placeButton()
{
    const QSize size = m_button->sizeHint();
    m_button->setGeometry(
        QRect(QPoint(width() - Theme::Space24 - size.width(), (height() - size.height() + 1) / 2), size));
    m_button->setVisible(m_text.isEmpty() && !m_offer.isEmpty());
}

void oListLine::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeButton();
}

void oListLine::Clear()
{
    if (m_text.isEmpty())
        return;
    m_timer.stop();
    m_text.clear();
    if (hasFocus())
        focusNextPrevChild(false);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(m_offer);
    placeButton();
    update();
}

bool oListLine::isHeld() const
{
    return underMouse() || hasFocus();
}

void oListLine::clearWhenFree()
{
    if (!m_timer.isActive() && !isHeld())
        Clear();
}

QSize oListLine::sizeHint() const
{
    return {0, Theme::scaled(Height)};
}

QRect oListLine::textPlace() const
{
    const int right = m_button->isHidden() ? Theme::Space24 : width() - m_button->x() + Theme::Space12;
    return rect().adjusted(Theme::Space24 + Theme::scaled(SignSize) + Theme::Space8, 0, -right, 0);
}

bool oListLine::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut: update(); [[fallthrough]];
    case QEvent::Leave:
        // After the pointer or the focus has left.
        QMetaObject::invokeMethod(this, &oListLine::clearWhenFree, Qt::QueuedConnection);
        break;
    case QEvent::ToolTip:
        if (fontMetrics().horizontalAdvance(Text()) > textPlace().width())
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), mdPlainToolTip(Text()), this);
        return true;
    default: break;
    }
    return QWidget::event(event);
}

void oListLine::paintEvent(QPaintEvent *)
{
    const QString &text = Text();
    if (text.isEmpty())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), Theme::InformationTint);
    mdPaintLine(painter, rect(), Qt::TopEdge, Theme::Line);
    QRectF sign(0, 0, Theme::scaled(SignSize), Theme::scaled(SignSize));
    sign.moveCenter({Theme::Space24 + sign.width() / 2, rect().center().y() + 0.5});
    paintSign(painter, sign);
    painter.setPen(Theme::Ink);
    painter.drawText(textPlace(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(text, Qt::ElideRight, textPlace().width()));
    if (!hasFocus())
        return;
    constexpr int Ring = 2;
    painter.setPen(QPen(Theme::Purple, Ring));
    painter.drawRect(rect().adjusted(Ring / 2, Ring / 2, -Ring / 2, -Ring / 2));
}
