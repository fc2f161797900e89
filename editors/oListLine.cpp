#include "editors/oListLine.h"

#include "controls/mdIcons.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

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
{
    setObjectName(QStringLiteral("oListLine"));
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
    setAccessibleName(text);
    // While it says something it is a stop of the Tab key, where it can be read in peace.
    setFocusPolicy(Qt::TabFocus);
    m_timer.start();
    update();
    QAccessibleEvent said(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

void oListLine::Clear()
{
    if (m_text.isEmpty())
        return;
    m_timer.stop();
    m_text.clear();
    setAccessibleName({});
    if (hasFocus())
        focusNextPrevChild(false);
    setFocusPolicy(Qt::NoFocus);
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
    return rect().adjusted(Theme::Space24 + Theme::scaled(SignSize) + Theme::Space8, 0, -Theme::Space24, 0);
}

bool oListLine::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut: update(); [[fallthrough]];
    case QEvent::Leave:
        // Once the pointer or the focus is really gone.
        QMetaObject::invokeMethod(this, &oListLine::clearWhenFree, Qt::QueuedConnection);
        break;
    case QEvent::ToolTip:
        if (fontMetrics().horizontalAdvance(m_text) > textPlace().width())
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), mdPlainToolTip(m_text), this);
        return true;
    default: break;
    }
    return QWidget::event(event);
}

void oListLine::paintEvent(QPaintEvent *)
{
    if (m_text.isEmpty())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), Theme::InformationTint);
    mdPaintLine(painter, rect(), Qt::TopEdge, Theme::Line);
    QRectF sign(0, 0, Theme::scaled(SignSize), Theme::scaled(SignSize));
    sign.moveCenter({Theme::Space24 + sign.width() / 2, rect().center().y() + 0.5});
    paintSign(painter, sign);
    painter.setPen(Theme::Ink);
    painter.drawText(textPlace(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(m_text, Qt::ElideRight, textPlace().width()));
    if (!hasFocus())
        return;
    constexpr int Ring = 2;
    painter.setPen(QPen(Theme::Purple, Ring));
    painter.drawRect(rect().adjusted(Ring / 2, Ring / 2, -Ring / 2, -Ring / 2));
}
