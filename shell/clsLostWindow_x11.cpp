// Detects destroyed windows from the X server's events; other platforms have no such check.

#include "shell/clsLostWindow.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace {

/// The event as defined by the X11 protocol.
struct clsDestroyNotify {
    static constexpr quint8 Type = 17;
    static constexpr quint8 TypeBits = 0x7F; ///< without the flag of events sent by other programs

    quint8 type;
    quint8 unused;
    quint16 sequence;
    quint32 reportedTo;
    quint32 window;
};

/// Whether a visible window of the program has this id. One that the toolkit has closed itself no longer counts.
bool isShown(quint32 id)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
        [id](QWindow *window) { return window->handle() && window->isVisible() && window->winId() == id; });
}

} // namespace

clsLostWindow::clsLostWindow(std::function<void()> lost)
    : m_lost(std::move(lost))
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

clsLostWindow::~clsLostWindow()
{
    if (QCoreApplication *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

bool clsLostWindow::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto &event = *static_cast<const clsDestroyNotify *>(message);
    if ((event.type & clsDestroyNotify::TypeBits) == clsDestroyNotify::Type && isShown(event.window))
        QTimer::singleShot(0, QCoreApplication::instance(), [lost = m_lost] { lost(); });
    return false;
}
