#pragma once

#include <QCheckBox>

/// A tick box without text; its caption is a label beside it. A blue square around it shows the focus. Click is raised
/// at every change of its state, including those made by the program: screens fill their ticks from the claim and rely
/// on their handlers running.
class oCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit oCheckBox(QWidget *parent = nullptr);

    bool Checked() const { return isChecked(); }

    /// Its name for screen readers; not displayed.
    void setCaption(const QString &caption);

signals:
    void Click(bool checked);
};
