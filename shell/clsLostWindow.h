#pragma once

#include <QAbstractNativeEventFilter>

#include <functional>

/// Tells where another program has destroyed a window of this one, which the toolkit takes no notice of: the program
/// would run on without a window that its user could reach, and hold its journal back from the next start.
class clsLostWindow final : public QAbstractNativeEventFilter {
public:
    explicit clsLostWindow(std::function<void()> lost);
    ~clsLostWindow() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    std::function<void()> m_lost;
};
