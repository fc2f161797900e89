#pragma once

#include <QCheckBox>

/// A tick without a text of its own: its caption is a label beside it. Where it has the focus, a blue square around it
/// says so. Click follows every change of its state, also one that a program makes: screens fill their ticks from the
/// claim and rely on their handlers to run.
class oCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit oCheckBox(QWidget *parent = nullptr);

    bool Checked() const { return isChecked(); }

    /// What a screen reader calls it; nothing of it is shown.
    void setCaption(const QString &caption);

signals:
    void Click(bool checked);
};
