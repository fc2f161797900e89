#include "controls/oTabBarButton.h"

#include "controls/mdAccessible.h"
#include "controls/mdRowKeys.h"

#include <QAccessibleWidget>
#include <QStyleOption>
#include <QStylePainter>

namespace {

/// The screen-reader interface of a text tab; other buttons use the toolkit's.
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

} // namespace

oTabBarButton::oTabBarButton(const QString &caption, Shape shape, QWidget *parent)
    : QAbstractButton(parent)
    , m_shape(shape)
{
    mdInstallAccessible<accessibleTab>();
    setCaption(caption);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_Hover);
    setProperty("look", QStringLiteral("band")); // if it is drawn as a button
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void oTabBarButton::setCaption(const QString &caption)
{
    m_caption = caption;
    setText(
        QString(caption).replace(u'&', QStringLiteral("&&"))); // no mnemonic: the row is moved through by the arrows
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
    const QSize textSize = fontMetrics().size(Qt::TextShowMnemonic, text());
    if (m_shape == Shape::Tab) {
        const QStyleOptionTab option = tabOption();
        return style()->sizeFromContents(QStyle::CT_TabBarTab, &option, textSize, this);
    }
    const QStyleOptionButton option = buttonOption();
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, textSize, this);
}

void oTabBarButton::keyPressEvent(QKeyEvent *event)
{
    if (!mdTakeRowKey(*this, *event, [this](int steps) { emit Move(steps); }))
        QAbstractButton::keyPressEvent(event);
}

bool oTabBarButton::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        updateGeometry();
    return QAbstractButton::event(event);
}

void oTabBarButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    if (m_shape == Shape::Tab) {
        const QStyleOptionTab option = tabOption();
        painter.drawControl(QStyle::CE_TabBarTabShape, option);
        painter.drawControl(QStyle::CE_TabBarTabLabel, option);
    } else {
        painter.drawControl(QStyle::CE_PushButton, buttonOption());
    }
}

QStyleOptionTab oTabBarButton::tabOption() const
{
    QStyleOptionTab option;
    option.initFrom(this);
    option.text = text();
    option.state.setFlag(QStyle::State_Sunken, isDown());
    option.state.setFlag(QStyle::State_Selected, m_selected);
    return option;
}

QStyleOptionButton oTabBarButton::buttonOption() const
{
    QStyleOptionButton option;
    option.initFrom(this);
    option.text = text();
    // The button stays down while its screen is open.
    option.state.setFlag(QStyle::State_Sunken, isDown());
    option.state.setFlag(QStyle::State_On, m_selected);
    return option;
}
