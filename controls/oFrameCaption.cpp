#include "controls/oFrameCaption.h"

#include "controls/mdAccessible.h"
#include "controls/mdIcons.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "controls/oFrame.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace {

/// The caption of a group is text; that of a page is a button that shows whether the page is open.
class clsAccessibleCaption final : public QAccessibleWidget {
public:
    explicit clsAccessibleCaption(QWidget *caption)
        : QAccessibleWidget(caption)
    { }

    QAccessible::Role role() const override
    {
        return caption().isPage() ? QAccessible::Button : QAccessible::StaticText;
    }
    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        result.expandable = caption().isPage();
        result.expanded = caption().isPage() && caption().isOpen();
        result.collapsed = caption().isPage() && !caption().isOpen();
        return result;
    }
    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (caption().isPage())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString &name) override
    {
        if (name == pressAction())
            caption().click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    oFrameCaption &caption() const { return static_cast<oFrameCaption &>(*widget()); }
};

QAccessibleInterface *accessibleCaption(const QString &, QObject *object)
{
    auto *caption = qobject_cast<oFrameCaption *>(object);
    return caption ? new clsAccessibleCaption(caption) : nullptr;
}

} // namespace

oFrameCaption::oFrameCaption(oFrame &frame)
    : QAbstractButton(&frame)
    , m_frame(frame)
{
    mdInstallAccessible<accessibleCaption>();
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

bool oFrameCaption::isPage() const
{
    return m_frame.m_showExpandCollapseIcon;
}

bool oFrameCaption::isOpen() const
{
    return m_frame.m_expanded;
}

QSize oFrameCaption::sizeHint() const
{
    const QFontMetrics metrics(Theme::font(0, true));
    const int width = metrics.horizontalAdvance(m_frame.m_caption) + 2 * Theme::Space16;
    if (isPage())
        return {width + Theme::scaled(60), qMax(metrics.height() + 18, Theme::scaled(36))};
    // The distance to the body is in the frame's layout.
    return {width, m_frame.m_caption.isEmpty() ? Theme::Space16 : metrics.height() + 10};
}

void oFrameCaption::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // Also accepts the repeats of a key held down: otherwise they would press the default button.
        event->accept();
        if (!event->isAutoRepeat())
            click();
    } else if (event->key() == Qt::Key_Space) {
        QAbstractButton::keyPressEvent(event);
    } else {
        // Up and Down belong to the switcher, which moves between its captions.
        QWidget::keyPressEvent(event);
    }
}

void oFrameCaption::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (isPage())
        paintPage(painter);
    else
        paintHeading(painter);
}

void oFrameCaption::paintHeading(QPainter &painter) const
{
    painter.setFont(Theme::font(0, true));
    painter.setPen(isEnabled() ? m_frame.m_captionColour : Theme::Ink3);
    paintCaption(painter, rect().adjusted(Theme::Space16, 0, -Theme::Space16, 0), Qt::AlignLeft | Qt::AlignBottom);
}

void oFrameCaption::paintCaption(QPainter &painter, const QRect &room, Qt::Alignment alignment) const
{
    const QString shown = painter.fontMetrics().elidedText(m_frame.m_caption, Qt::ElideRight, room.width());
    const int flags = int(alignment) | Qt::TextSingleLine;
    // A caption too long for its frame is drawn without the mnemonic.
    if (shown == m_frame.m_caption && !m_frame.m_markedCaption.isEmpty())
        mdPaintCaption(painter, room, flags, m_frame.m_markedCaption, style()->styleHint(QStyle::SH_UnderlineShortcut));
    else
        painter.drawText(room, flags, shown);
}

void oFrameCaption::paintPage(QPainter &painter) const
{
    const bool open = m_frame.m_expanded;
    if (open || underMouse()) {
        // Inside the frame's round corners; those of an open page at the bottom are below its body.
        QPainterPath shape;
        const double corner = Theme::ControlCorner - 1;
        shape.addRoundedRect(QRectF(rect()).adjusted(0, 0, 0, open ? Theme::Space8 : 0), corner, corner);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(shape, Theme::Hover);
    }
    const QColor ink = !isEnabled() ? Theme::Ink3 : open ? Theme::Purple : m_frame.m_captionColour;
    const int side = Theme::scaled(14);
    const QRect chevron(Theme::Space12, (height() - side) / 2, side, side);
    const Glyph glyph = open ? Glyph::ChevronDown : Glyph::ChevronRight;
    mdPaintGlyph(painter, chevron, glyph, open ? Theme::Purple : Theme::Ink2);

    QRect room = rect().adjusted(chevron.right() + 1 + Theme::Space8, 0, -Theme::Space12, 0);
    if (m_frame.m_count > 0) {
        const QString count = QString::number(m_frame.m_count);
        painter.setFont(Theme::font(-1, open));
        painter.setPen(Theme::Ink2);
        painter.drawText(room, int(Qt::AlignRight | Qt::AlignVCenter), count);
        room.setRight(room.right() - painter.fontMetrics().horizontalAdvance(count) - Theme::Space8);
    }
    painter.setFont(Theme::font(0, open));
    painter.setPen(ink);
    paintCaption(painter, room, Qt::AlignLeft | Qt::AlignVCenter);
    if (hasFocus())
        mdPaintRing(painter, rect().adjusted(1, 1, -1, -1), Theme::Purple);
}
