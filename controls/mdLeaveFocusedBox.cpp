#include "controls/mdLeaveFocusedBox.h"

#include "controls/clsHoldingBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QScrollBar>

namespace {

/// A press gives the focus to the widget or to its nearest ancestor that accepts it.
bool takesFocusByClick(const QWidget *widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget())
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus)
            return true;
    return false;
}

clsHoldingBox *holdingBox(QWidget *focused)
{
    return dynamic_cast<clsHoldingBox *>(focused);
}

bool wouldLeave(const QWidget *target, const QWidget &box, QEvent::Type type)
{
    if (target->window() != box.window() || target == &box || box.isAncestorOf(target))
        return false;
    const bool isButton = qobject_cast<const QAbstractButton *>(target);
    if (type == QEvent::Shortcut)
        return isButton;
    return !qobject_cast<const QScrollBar *>(target) && (isButton || takesFocusByClick(target));
}

/// Blocks presses and mnemonics while a box holds the focus.
class clsFocusGuard final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick && type != QEvent::Shortcut)
            return false;
        const auto *target = qobject_cast<QWidget *>(watched);
        clsHoldingBox *box = target ? holdingBox(QApplication::focusWidget()) : nullptr;
        return box && wouldLeave(target, box->whole(), type) && !box->leave();
    }
};

} // namespace

bool mdLeaveFocusedBox(const QWidget *window)
{
    clsHoldingBox *box = holdingBox(window->focusWidget());
    return !box || box->leave();
}

bool mdIsInterruption(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

void mdGuardFocusedBoxes()
{
    const QString name = QStringLiteral("focusGuard");
    if (qApp->findChild<QObject *>(name, Qt::FindDirectChildrenOnly))
        return;
    auto *guard = new clsFocusGuard(qApp);
    guard->setObjectName(name);
    qApp->installEventFilter(guard);
}
