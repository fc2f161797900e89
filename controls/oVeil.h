#pragma once

#include <QPointer>

class QWidget;

/// Shades a window for as long as it waits for the one above it. Whatever closes the window meanwhile takes the shade
/// with it.
class oVeil {
public:
    /// Veils the window that a widget belongs to; nothing where there is none, or none that shows.
    explicit oVeil(QWidget *below);
    ~oVeil();
    Q_DISABLE_COPY_MOVE(oVeil)

private:
    QPointer<QWidget> m_shade;
};
