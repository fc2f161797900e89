#include "controls/oFrame.h"

#include "controls/mdAccessible.h"
#include "controls/mdCaption.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oFrameCaption.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {

/// A frame is a group with its caption, so that screen readers can distinguish fields of the same name in several
/// frames.
QAccessibleInterface *accessibleFrame(const QString &, QObject *object)
{
    auto *frame = qobject_cast<oFrame *>(object);
    return frame ? new QAccessibleWidget(frame, QAccessible::Grouping) : nullptr;
}

} // namespace

oFrame::oFrame(QWidget *parent)
    : QWidget(parent)
    , m_backColour(Theme::Paper)
    , m_captionColour(Theme::Ink)
    , m_bar(new oFrameCaption(*this))
    , m_body(new QVBoxLayout)
{
    mdInstallAccessible<accessibleFrame>();
    m_bar->setObjectName(QStringLiteral("caption"));
    auto *all = new QVBoxLayout(this);
    // The surrounding line.
    all->setContentsMargins(1, 1, 1, 1);
    all->setSpacing(0);
    all->addWidget(m_bar);
    all->addLayout(m_body, 1);
    measure();
    connect(m_bar, &QAbstractButton::clicked, this, [this] {
        emit Click();
        emit ExpandCollapse();
    });
}

QWidget *oFrame::captionBar() const
{
    return m_bar;
}

void oFrame::setCaption(const QString &caption)
{
    m_caption = caption;
    m_markedCaption.clear();
    setAccessibleName(mdSpokenCaption(caption));
    measure();
}

void oFrame::setMarkedCaption(const QString &caption)
{
    m_markedCaption = caption;
    m_bar->update();
}

void oFrame::setBackColour(const QColor &colour)
{
    m_backColour = colour;
    update();
}

void oFrame::setCaptionColour(const QColor &colour)
{
    m_captionColour = colour;
    m_bar->update();
}

void oFrame::setShowExpandCollapseIcon(bool show)
{
    m_showExpandCollapseIcon = show;
    m_bar->setFocusPolicy(show ? Qt::StrongFocus : Qt::NoFocus);
    measure();
}

void oFrame::setExpanded(bool expanded)
{
    m_expanded = expanded;
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(m_bar, changed);
    QAccessible::updateAccessibility(&event);
    update();
}

void oFrame::setBare(bool bare)
{
    m_bare = bare;
    m_bar->setVisible(!bare);
    measure();
}

void oFrame::setCount(int count)
{
    m_count = count;
    const QString words = count == 1 ? QStringLiteral("1 item") : QStringLiteral("%1 items").arg(count);
    m_bar->setAccessibleDescription(count > 0 ? words : QString());
    m_bar->update();
}

void oFrame::measure()
{
    // A page's margins belong to the switcher, which hides them together with the contents of a closed page.
    const int side = m_showExpandCollapseIcon || m_bare ? 0 : Theme::Space16;
    const bool titled = !m_showExpandCollapseIcon && !m_caption.isEmpty();
    m_body->setContentsMargins(side, titled ? Theme::Space12 : 0, side, side);
    m_bar->setAccessibleName(mdSpokenCaption(m_caption));
    m_bar->updateGeometry();
    update();
}

void oFrame::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        measure();
}

void oFrame::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton;
}

void oFrame::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_pressed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Click();
    m_pressed = false;
}

void oFrame::paintEvent(QPaintEvent *)
{
    if (m_bare)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool open = m_showExpandCollapseIcon && m_expanded;
    const double corner = m_showExpandCollapseIcon ? Theme::ControlCorner : Theme::FrameCorner;
    painter.setPen(QPen(open ? Theme::PageEdge : Theme::Line, 1));
    painter.setBrush(m_backColour);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner - 0.5, corner - 0.5);
    if (open)
        mdPaintLine(painter, QRect(1, m_bar->geometry().bottom() + 1, width() - 2, 1), Qt::TopEdge, Theme::Line);
}

void oFrame::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    emit Resized();
}
