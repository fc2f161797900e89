#include "controls/oTabBarButton.h"

#include "controls/mdTheme.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

#include <limits>

namespace {

constexpr double TabLine = 3; // under the chosen tab
constexpr double RingWidth = 2; // of the focus
constexpr int TabLineReach = 4; // of the line beyond the text at either side
constexpr int TabPadding = Theme::Space16;
constexpr int TabRoomAboveAndBelow = 20;
constexpr int ButtonPadding = 15;
constexpr int ButtonRoomAboveAndBelow = 12;

/// What a screen reader is told of a text tab; toolkit buttons are told as buttons anyway.
class clsAccessibleTab final : public QAccessibleWidget {
public:
    explicit clsAccessibleTab(oTabBarButton *button)
        : QAccessibleWidget(button, QAccessible::PageTab)
    { }

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        result.selectable = true;
        result.selected = button()->Selected();
        return result;
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? button()->Caption() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &action) override
    {
        if (action == pressAction())
            button()->click();
    }

private:
    oTabBarButton *button() const { return static_cast<oTabBarButton *>(widget()); }
};

QAccessibleInterface *accessibleTab(const QString &, QObject *object)
{
    auto *button = qobject_cast<oTabBarButton *>(object);
    return button && button->shape() == oTabBarButton::Shape::Tab ? new clsAccessibleTab(button) : nullptr;
}

/// The outline of a rounded rectangle, inside the one given.
void paintOutline(QPainter &painter, const QRectF &rectangle, double width, const QColor &colour)
{
    const double inset = width / 2;
    painter.setPen(QPen(colour, width));
    painter.drawRoundedRect(
        rectangle.adjusted(inset, inset, -inset, -inset), Theme::ControlCorner, Theme::ControlCorner);
}

} // namespace

oTabBarButton::oTabBarButton(const QString &caption, Shape shape, QWidget *parent)
    : QAbstractButton(parent)
    , m_shape(shape)
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(accessibleTab), true);
    setCaption(caption);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void oTabBarButton::setCaption(const QString &caption)
{
    setText(caption);
    setAccessibleName(caption);
}

void oTabBarButton::setSelected(bool selected)
{
    if (selected == m_selected)
        return;
    m_selected = selected;
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    update();
}

void oTabBarButton::setShape(Shape shape)
{
    m_shape = shape;
    updateGeometry();
    update();
}

QSize oTabBarButton::sizeHint() const
{
    // As wide as the semibold text, so that choosing a tab moves none.
    const QFontMetrics metrics(Theme::font(0, m_shape == Shape::Tab));
    const bool isTab = m_shape == Shape::Tab;
    return {metrics.horizontalAdvance(text()) + 2 * Theme::scaled(isTab ? TabPadding : ButtonPadding),
        metrics.height() + Theme::scaled(isTab ? TabRoomAboveAndBelow : ButtonRoomAboveAndBelow)};
}

void oTabBarButton::keyPressEvent(QKeyEvent *event)
{
    constexpr int toTheEnd = std::numeric_limits<int>::max() / 2;
    switch (event->key()) {
    case Qt::Key_Left: emit Move(-1); return;
    case Qt::Key_Right: emit Move(1); return;
    case Qt::Key_Home: emit Move(-toTheEnd); return;
    case Qt::Key_End: emit Move(toTheEnd); return;
    case Qt::Key_Return:
    case Qt::Key_Enter: click(); return;
    case Qt::Key_Up:
    case Qt::Key_Down: event->ignore(); return; // the base would walk to whatever lies above or below
    default: QAbstractButton::keyPressEvent(event);
    }
}

bool oTabBarButton::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        updateGeometry();
    return QAbstractButton::event(event);
}

void oTabBarButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_shape == Shape::Tab)
        paintTab(painter);
    else
        paintButton(painter);
}

void oTabBarButton::paintTab(QPainter &painter)
{
    const bool hovered = isEnabled() && underMouse();
    painter.setFont(Theme::font(0, m_selected));
    if (hovered || isDown())
        painter.fillRect(rect(), isDown() ? Theme::Selected : Theme::Hover);
    if (m_selected) {
        const int textWidth = painter.fontMetrics().horizontalAdvance(text()) + 2 * Theme::scaled(TabLineReach);
        const double line = Theme::scaled(TabLine);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::Purple);
        painter.drawRoundedRect(QRectF((width() - textWidth) / 2.0, height() - line, textWidth, line), 1, 1);
        painter.setBrush(Qt::NoBrush);
    }
    if (hasFocus())
        paintOutline(painter, rect().adjusted(2, 2, -2, -Theme::scaled(TabLine) - 2), RingWidth, Theme::Purple);
    painter.setPen(!isEnabled() ? Theme::Ink3 : m_selected || hovered ? Theme::Purple : Theme::Ink2);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

void oTabBarButton::paintButton(QPainter &painter)
{
    const bool hovered = isEnabled() && underMouse();
    const QColor back = !isEnabled() ? Theme::Canvas
        : isDown() || m_selected     ? Theme::Selected
        : hovered                    ? Theme::Hover
                                     : Theme::Paper;
    painter.setBrush(back);
    paintOutline(painter, rect(), 1, hovered || isDown() ? Theme::Purple : Theme::EdgeOff);
    painter.setBrush(Qt::NoBrush);
    if (hasFocus())
        paintOutline(painter, rect(), RingWidth, Theme::Purple);
    painter.setFont(Theme::font());
    painter.setPen(!isEnabled() ? Theme::Ink3 : hovered || isDown() ? Theme::Purple : Theme::Ink);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
