#pragma once

#include <QPointer>

class QWidget;

/// Shades a window while it waits for the one above it. If the window is closed meanwhile, the shade is too.
class oVeil {
public:
    /// Veils the window of a widget; does nothing if there is none or it isn't visible.
    explicit oVeil(QWidget *below);
    ~oVeil();
    Q_DISABLE_COPY_MOVE(oVeil)

private:
    QPointer<QWidget> m_shade;
};
