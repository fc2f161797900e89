#pragma once

#include <QAbstractButton>

/// The cross that closes a panel: only its glyph, until the pointer or the focus is on it.
class oCloseButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `what` is read aloud, such as "Close the check".
    explicit oCloseButton(const QString &what, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
