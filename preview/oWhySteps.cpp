#include "preview/oWhySteps.h"

#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int Side = 16;
constexpr int Above = 9;
constexpr int SumAbove = 12;
constexpr int BetweenLines = 2;
constexpr int BeforeValue = 12;
/// The width limit of a long text, so that its value has room too.
constexpr int WidestText = 236;

QRect textRoom(const QRect &inside, int value)
{
    const int wide = qMin(inside.width() - value - Theme::scaled(BeforeValue), Theme::scaled(WidestText));
    return QRect(inside.left(), inside.top(), qMax(1, wide), inside.height());
}

int heightOfText(const QFont &font, const QString &text, int width)
{
    return QFontMetrics(font).boundingRect(QRect(0, 0, width, 10'000), Qt::TextWordWrap, text).height();
}

} // namespace

oWhySteps::oWhySteps(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void oWhySteps::setSteps(std::vector<clsShownStep> steps)
{
    m_steps = std::move(steps);
    m_marked = m_under = -1;
    QStringList words;
    for (const clsShownStep &step : m_steps)
        words << QStringList({step.text, step.reason, step.value}).join(u' ').simplified();
    setAccessibleName(words.join(QStringLiteral("; ")));
    updateGeometry();
    update();
}

void oWhySteps::setSum(bool sum)
{
    m_sum = sum;
}

void oWhySteps::setWalked(bool walked)
{
    m_walked = walked;
    setFocusPolicy(walked ? Qt::StrongFocus : Qt::NoFocus);
}

int oWhySteps::heightOf(const clsShownStep &step, int width) const
{
    const QFont font = Theme::font(0, m_sum);
    const QRect inside(0, 0, width - 2 * Theme::scaled(Side), 0);
    const int room = textRoom(inside, QFontMetrics(font).horizontalAdvance(step.value)).width();
    const int reason
        = step.reason.isEmpty() ? 0 : Theme::scaled(BetweenLines) + heightOfText(Theme::font(-1), step.reason, room);
    return 2 * Theme::scaled(m_sum ? SumAbove : Above) + heightOfText(font, step.text, room) + reason;
}

int oWhySteps::heightFor(int width) const
{
    int height = 0;
    for (const clsShownStep &step : m_steps)
        height += heightOf(step, width);
    return height;
}

QSize oWhySteps::sizeHint() const
{
    return {width(), heightFor(width())};
}

QRect oWhySteps::PlaceOf(int step) const
{
    int top = 0;
    for (int i = 0; i < step; ++i)
        top += heightOf(m_steps[size_t(i)], width());
    return QRect(0, top, width(), heightOf(m_steps[size_t(step)], width()));
}

int oWhySteps::stepAt(const QPoint &place) const
{
    int top = 0;
    for (size_t i = 0; m_walked && i < m_steps.size(); ++i) {
        const int height = heightOf(m_steps[i], width());
        if (place.y() >= top && place.y() < top + height)
            return m_steps[i].leadsOn ? int(i) : -1;
        top += height;
    }
    return -1;
}

bool oWhySteps::MoveMark(int direction)
{
    for (int step = m_marked + direction; step >= 0 && step < int(m_steps.size()); step += direction)
        if (m_steps[size_t(step)].leadsOn) {
            m_marked = step;
            update();
            emit MarkMoved();
            return true;
        }
    return false;
}

void oWhySteps::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    int top = 0;
    for (size_t i = 0; i < m_steps.size(); ++i) {
        const QRect place(0, top, width(), heightOf(m_steps[i], width()));
        top += place.height();
        if (!place.intersects(event->rect()))
            continue;
        if (int(i) == m_marked && hasFocus()) {
            painter.fillRect(place, Theme::Selected);
            painter.fillRect(QRect(place.left(), place.top(), 3, place.height()), Theme::Purple);
        } else if (int(i) == m_under) {
            painter.fillRect(place, Theme::Hover);
        }
        if (m_sum || i > 0)
            mdPaintLine(painter, place, Qt::TopEdge, m_sum ? Theme::Edge : Theme::Hairline);
        paintStep(painter, m_steps[i], place, int(i) == m_under);
    }
}

void oWhySteps::paintStep(QPainter &painter, const clsShownStep &step, const QRect &place, bool under) const
{
    const int side = Theme::scaled(Side);
    const int above = Theme::scaled(m_sum ? SumAbove : Above);
    const QRect inside = place.adjusted(side, above, -side, -above);
    const QFont font = Theme::font(0, m_sum || step.failed);
    painter.setFont(font);
    painter.setPen(step.failed ? Theme::Red : Theme::Ink);
    painter.drawText(inside, Qt::AlignRight | Qt::AlignTop, step.value);
    QRect room = textRoom(inside, QFontMetrics(Theme::font(0, m_sum)).horizontalAdvance(step.value));
    QFont own = Theme::font(0, m_sum);
    const int height = heightOfText(own, step.text, room.width());
    own.setUnderline(under);
    painter.setFont(own);
    painter.setPen(Theme::Ink);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, step.text);
    if (step.reason.isEmpty())
        return;
    room.setTop(room.top() + height + Theme::scaled(BetweenLines));
    painter.setFont(Theme::font(-1));
    painter.setPen(step.failed ? Theme::Red : Theme::Ink2);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, step.reason);
}

void oWhySteps::keyPressEvent(QKeyEvent *event)
{
    const bool chooses
        = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (!chooses || m_marked < 0)
        return QWidget::keyPressEvent(event);
    event->accept();
    if (!event->isAutoRepeat())
        emit Chosen(m_marked);
}

void oWhySteps::mouseMoveEvent(QMouseEvent *event)
{
    m_under = stepAt(event->position().toPoint());
    setCursor(m_under < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void oWhySteps::leaveEvent(QEvent *)
{
    m_under = -1;
    update();
}

void oWhySteps::mouseReleaseEvent(QMouseEvent *event)
{
    if (const int step = stepAt(event->position().toPoint()); event->button() == Qt::LeftButton && step >= 0)
        emit Chosen(step);
}

void oWhySteps::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (m_marked < 0)
        MoveMark(1);
    update();
}

void oWhySteps::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
