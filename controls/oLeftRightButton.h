#pragma once

#include <QFrame>

class oCustomButton;

/// A joined pair of buttons, for the previous and the next screen. Each raises its own event while enabled.
class oLeftRightButton : public QFrame {
    Q_OBJECT

public:
    explicit oLeftRightButton(QWidget *parent = nullptr);

    void setLeftCaption(const QString &caption);
    QString LeftCaption() const;
    void setRightCaption(const QString &caption);
    QString RightCaption() const;

    /// Sets the buttons' targets for tooltips and screen readers; empty for none.
    void setLeftTarget(const QString &target);
    void setRightTarget(const QString &target);

    void setLeftEnabled(bool enabled);
    bool LeftEnabled() const;
    void setRightEnabled(bool enabled);
    bool RightEnabled() const;

signals:
    void LeftClick();
    void RightClick();

private:
    oCustomButton *m_btnLeft;
    oCustomButton *m_btnRight;
};
