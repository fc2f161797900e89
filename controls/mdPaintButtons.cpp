#include "controls/mdPaintControls.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace {

using Look = oCustomButton::Look;

struct clsButtonColours {
    QColor back;
    QColor edge;
    QColor text;
};

struct clsFilled {
    QColor normal;
    QColor hover;
    QColor pressed;
};

bool isFilled(Look look)
{
    return look == Look::Default || look == Look::Danger;
}

/// The look set for a button; buttons of the toolkit's dialogs have none and only show which is the default.
Look lookOf(const QStyleOptionButton &option, const QWidget *widget)
{
    const QVariant given = widget ? widget->property("look") : QVariant();
    if (given.isValid())
        return oCustomButton::lookFromName(given.toString());
    return option.features & QStyleOptionButton::DefaultButton ? Look::Default : Look::Secondary;
}

Glyph glyphOf(const QWidget *widget)
{
    return widget ? Glyph(widget->property("glyph").toInt()) : Glyph::None;
}

clsButtonColours colours(const QStyleOptionButton &option, Look look)
{
    const bool pressed = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hover = option.state & QStyle::State_MouseOver;
    if (!(option.state & QStyle::State_Enabled))
        return {Theme::Canvas, Theme::EdgeOff, Theme::Ink3};
    if (isFilled(look)) {
        const clsFilled filled = look == Look::Danger
            ? clsFilled {Theme::Red, Theme::RedHover, Theme::RedPressed}
            : clsFilled {Theme::Purple, Theme::PurpleHover, Theme::PurplePressed};
        const QColor back = pressed ? filled.pressed : hover ? filled.hover : filled.normal;
        return {back, back, Theme::Paper};
    }
    if (pressed)
        return {Theme::Selected, Theme::Purple, Theme::Purple};
    if (hover)
        return {Theme::Hover, Theme::Purple, Theme::Purple};
    return {Theme::Paper, look == Look::Band ? Theme::EdgeOff : Theme::Edge, Theme::Ink};
}

/// Each half of a joined pair has round corners only on its outer side; the dividing line belongs to the right half.
void paintBack(QPainter &painter, const QRectF &visible, const clsButtonColours &colour, Look look)
{
    constexpr double Beyond = Theme::ControlCorner + 1;
    QRectF drawn = visible;
    if (look == Look::JoinedLeft)
        drawn.setRight(visible.right() + Beyond);
    painter.save();
    painter.setClipRect(visible);
    if (look == Look::JoinedRight) {
        painter.save();
        painter.setClipRect(QRectF(visible.topLeft(), QSizeF(Beyond, visible.height())));
        QRectF square = visible;
        square.adjust(0.5, 0.5, -0.5, -0.5);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour.edge, 1));
        painter.setBrush(colour.back);
        painter.drawRect(square);
        painter.restore();
        painter.setClipRect(visible.adjusted(Beyond, 0, 0, 0));
    }
    mdPaintBox(painter, drawn, colour.back, colour.edge);
    painter.restore();
}

void paintCaption(QPainter &painter, const QStyleOptionButton &option, const QRect &visible, const QColor &colour,
    Glyph glyph, bool underline)
{
    const int flags = Qt::AlignCenter | Qt::TextSingleLine | Qt::TextHideMnemonic;
    const int side = glyph == Glyph::None ? 0 : Theme::scaled(option.text.isEmpty() ? 16 : 14);
    const int gap = side && !option.text.isEmpty() ? Theme::Space8 : 0;
    const int textWidth = option.text.isEmpty() ? 0 : painter.fontMetrics().size(flags, option.text).width();
    const int left = visible.left() + (visible.width() - side - gap - textWidth) / 2;
    if (side) {
        const QRect place(left, visible.top() + (visible.height() - side) / 2, side, side);
        mdPaintGlyph(painter, QStyle::visualRect(option.direction, visible, place), glyph, colour);
    }
    painter.setPen(colour);
    const QRect text(left + side + gap, visible.top(), textWidth, visible.height());
    mdPaintCaption(
        painter, QStyle::visualRect(option.direction, visible, text), flags | Qt::TextDontClip, option.text, underline);
}

} // namespace

void mdPaintButton(QPainter &painter, const QStyleOptionButton &option, const QWidget *widget, bool underline)
{
    const Look look = lookOf(option, widget);
    const int room = Theme::RingRoom;
    const QRect visible = option.rect.adjusted(room, room, -room, -room);
    const clsButtonColours colour = colours(option, look);
    painter.save();
    paintBack(painter, visible, colour, look);
    if ((option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_Enabled))
        mdPaintRing(painter, option.rect, look == Look::Danger ? Theme::Red : Theme::Purple);
    if (isFilled(look) && !(option.state & QStyle::State_Enabled)) {
        QFont font = painter.font();
        font.setWeight(QFont::Normal);
        painter.setFont(font);
    }
    paintCaption(painter, option, visible, colour.text, glyphOf(widget), underline);
    painter.restore();
}

QSize mdButtonSize(const QStyleOptionButton &option, const QSize &caption, const QWidget *widget)
{
    struct clsSizes {
        int padding;
        int above;
        int leastWidth;
        int leastHeight;
    };
    const Look look = lookOf(option, widget);
    const clsSizes sizes = look == Look::Small ? clsSizes {11, 3, 48, 24}
        : look == Look::Arrow                  ? clsSizes {4, 7, 28, 32}
        : look == Look::Band                   ? clsSizes {15, 6, 0, 30}
                                               : clsSizes {17, 7, 88, 32};
    int width = option.text.isEmpty() ? 0 : caption.width();
    if (glyphOf(widget) != Glyph::None)
        width += Theme::scaled(16) + (option.text.isEmpty() ? 0 : Theme::Space8);
    const QSize visible(qMax(width + 2 * sizes.padding, Theme::scaled(sizes.leastWidth)),
        qMax(option.fontMetrics.height() + 2 * sizes.above, Theme::scaled(sizes.leastHeight)));
    return visible + 2 * QSize(Theme::RingRoom, Theme::RingRoom);
}
