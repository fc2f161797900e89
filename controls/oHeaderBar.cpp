#include "controls/oHeaderBar.h"

#include "controls/mdIcons.h"
#include "controls/mdLine.h"
#include "controls/mdLowScreen.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int Line = Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft;

} // namespace

oHeaderBar::oHeaderBar(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void oHeaderBar::setCaption(const QString &caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    describe();
}

void oHeaderBar::setSubCaption(const QString &caption)
{
    if (m_subCaption == caption)
        return;
    m_subCaption = caption;
    describe();
}

void oHeaderBar::setIconGroup(int group)
{
    m_iconGroup = group;
    update();
}

void oHeaderBar::setDocument(bool document)
{
    m_document = document;
    describe();
}

void oHeaderBar::setChip(const QString &text)
{
    if (m_chip == text)
        return;
    m_chip = text;
    describe();
}

void oHeaderBar::describe()
{
    setAccessibleName(m_caption);
    setAccessibleDescription(m_chip.isEmpty() ? m_subCaption : m_chip);
    // A path may be elided, so the tooltip has all of it.
    setToolTip(m_document ? mdPlainToolTip(m_caption) : QString());
    updateGeometry();
    update();
}

QFont oHeaderBar::captionFont(bool semibold) const
{
    return Theme::font(m_document ? 3 : 4, semibold);
}

int oHeaderBar::tileSide() const
{
    return Theme::scaled(m_document || m_low ? 30 : 36);
}

int oHeaderBar::captionWidth() const
{
    return QFontMetrics(captionFont()).horizontalAdvance(m_caption) + tileSide() + Theme::Space12 + 2 * Theme::Space24;
}

QSize oHeaderBar::sizeHint() const
{
    const QFontMetrics metrics(captionFont());
    const int oneLine = qMax(Theme::scaled(46), metrics.height() + Theme::Space16);
    if (m_document || m_low)
        return {Theme::scaled(320), oneLine};
    const int lines = metrics.height() + QFontMetrics(Theme::font(-1)).height();
    return {Theme::scaled(320), qMax(Theme::scaled(62), lines + Theme::Space16) + 1};
}

QSize oHeaderBar::minimumSizeHint() const
{
    return {Theme::scaled(200), sizeHint().height()};
}

void oHeaderBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    followScreen();
}

void oHeaderBar::followScreen()
{
    const bool low = mdIsOnLowScreen(*this); // no room for a second line
    if (low == m_low)
        return;
    m_low = low;
    updateGeometry();
    update();
}

void oHeaderBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

void oHeaderBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::BottomEdge, Theme::Line);

    const int edge = m_low ? Theme::Space16 : Theme::Space24;
    const int side = tileSide();
    const QRect tile(edge, (height() - 1 - side) / 2, side, side);
    mdPaintTile(painter, tile, mdTile(m_iconGroup, window()->objectName()));

    QRect room = rect().adjusted(tile.right() + 1 + Theme::Space12, 0, -edge, -1);
    room.setRight(room.right() - paintChip(painter));
    if (m_document)
        paintDocument(painter, room);
    else
        paintTitle(painter, room);
}

int oHeaderBar::paintChip(QPainter &painter) const
{
    if (m_chip.isEmpty())
        return 0;
    painter.save();
    painter.setFont(Theme::font(-1));
    const QFontMetrics metrics = painter.fontMetrics();
    const int tall = metrics.height() + 4;
    const int wide = metrics.horizontalAdvance(m_chip) + 2 * 10;
    const QRect place(width() - Theme::Space24 - wide, (height() - 1 - tall) / 2, wide, tall);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::Band);
    painter.drawRoundedRect(place, tall / 2.0, tall / 2.0);
    painter.setPen(Theme::Ink2);
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, m_chip);
    painter.restore();
    return wide + Theme::Space16;
}

void oHeaderBar::paintTitle(QPainter &painter, const QRect &room) const
{
    const QFontMetrics large(captionFont());
    const QFontMetrics small(Theme::font(-1));
    const bool twoLines = !m_subCaption.isEmpty() && !m_low;
    QRect upper = room;
    QRect lower = room;
    if (twoLines) {
        upper.setTop(room.top() + (room.height() - large.height() - small.height()) / 2);
        upper.setHeight(large.height());
        lower.setTop(upper.bottom() + 1);
        lower.setHeight(small.height());
    }
    painter.setFont(captionFont());
    painter.setPen(Theme::Ink);
    const QString shown = large.elidedText(m_caption, Qt::ElideRight, upper.width());
    painter.drawText(upper, Line, shown);
    if (m_subCaption.isEmpty())
        return;
    if (m_low)
        lower.setLeft(upper.left() + large.horizontalAdvance(shown) + Theme::Space12);
    painter.setFont(Theme::font(-1));
    painter.setPen(Theme::Ink2);
    painter.drawText(lower, Line, small.elidedText(m_subCaption, Qt::ElideRight, lower.width()));
}

void oHeaderBar::paintDocument(QPainter &painter, const QRect &room) const
{
    const qsizetype name = qMax(m_caption.lastIndexOf(u'/'), m_caption.lastIndexOf(u'\\')) + 1;
    const QFontMetrics strong(captionFont());
    const QFontMetrics plain(captionFont(false));
    const QString file = strong.elidedText(m_caption.mid(name), Qt::ElideRight, room.width());
    const int fileWidth = strong.horizontalAdvance(file);
    const QString folder = plain.elidedText(m_caption.left(name), Qt::ElideMiddle, room.width() - fileWidth);
    painter.setFont(captionFont(false));
    painter.setPen(Theme::Ink2);
    painter.drawText(room, Line, folder);
    painter.setFont(captionFont());
    painter.setPen(Theme::Ink);
    painter.drawText(room.adjusted(plain.horizontalAdvance(folder), 0, 0, 0), Line, file);
}
