#pragma once

#include <QAbstractNativeEventFilter>

#include <functional>

/// Detects that another program has destroyed one of this program's windows, which the toolkit ignores. The program
/// would otherwise run on with no usable window, and keep its journal from being offered at the next start.
class clsLostWindow final : public QAbstractNativeEventFilter {
public:
    explicit clsLostWindow(std::function<void()> lost);
    ~clsLostWindow() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    std::function<void()> m_lost;
};
