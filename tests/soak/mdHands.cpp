#include "tests/soak/mdHands.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int LongestTyped = 24;

bool isTyped(const QString &text)
{
    return text.size() <= LongestTyped
        && std::ranges::all_of(text, [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

} // namespace

QWidget *Hands::front()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("frmMain"))
            return window;
    return nullptr;
}

bool Hands::ready()
{
    if (QApplication::activePopupWidget())
        return QGuiApplication::focusWindow() != nullptr;
    QWidget *window = front();
    if (!window || !window->isVisible())
        return false;
    const auto hasKeys
        = [window] { return window->isActiveWindow() && QGuiApplication::focusWindow() == window->windowHandle(); };
    if (!hasKeys())
        window->activateWindow();
    return hasKeys();
}

void Hands::key(int key, Qt::KeyboardModifiers modifiers)
{
    if (QWindow *window = QGuiApplication::focusWindow())
        QTest::keyClick(window, Qt::Key(key), modifiers);
}

void Hands::type(const QString &text)
{
    if (!isTyped(text)) {
        QGuiApplication::clipboard()->setText(text);
        return key(Qt::Key_V, Qt::ControlModifier);
    }
    for (const QChar c : text)
        if (QWindow *window = QGuiApplication::focusWindow())
            QTest::keyClick(window, c.toLatin1());
}

bool Hands::canClick(const QWidget &widget, const QPoint &at)
{
    return widget.isVisible() && widget.visibleRegion().contains(at);
}

bool Hands::click(QWidget &widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const QPoint middle = widget.visibleRegion().boundingRect().center();
    if (!canClick(widget, middle))
        return false;
    clickAt(widget, middle, button, modifiers);
    return true;
}

void Hands::clickAt(
    QWidget &widget, const QPoint &at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, bool twice)
{
    const QWidget *window = widget.window();
    const QPoint place = widget.mapTo(window, at);
    if (!window->windowHandle())
        return;
    if (twice)
        QTest::mouseDClick(window->windowHandle(), button, modifiers, place);
    else
        QTest::mouseClick(window->windowHandle(), button, modifiers, place);
}

void Hands::wheel(QWidget &widget, int notches, Qt::KeyboardModifiers modifiers)
{
    const QPoint middle = widget.rect().center();
    QWheelEvent event(QPointF(middle), QPointF(widget.mapToGlobal(middle)), QPoint(), QPoint(0, 120 * notches),
        Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}
