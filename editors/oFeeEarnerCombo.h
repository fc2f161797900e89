#pragma once

#include "editors/oScreenList.h"

#include <memory>

class clsZR3FeeEarner;

/// The list of the claim's fee earners. Function keys, with or without Shift, Control and Alt, choose the first 96; the
/// key is shown before the reference. Fills itself on construction and starts on the fee earner that the user chose
/// last in any list of this kind.
class oFeeEarnerCombo : public oScreenList {
    Q_OBJECT

public:
    explicit oFeeEarnerCombo(QWidget *parent = nullptr);

    /// Fills the list again and selects the entry chosen last, otherwise the first.
    void fill();

    /// The chosen fee earner; null in a claim without fee earners.
    std::shared_ptr<clsZR3FeeEarner> SelectedFeeEarner() const;
    /// Chooses a fee earner; null clears the choice.
    void setSelectedFeeEarner(const std::shared_ptr<clsZR3FeeEarner> &feeEarner);
    /// The identity of the chosen fee earner; empty if there is none.
    QString SelectedFeeEarnerUniqueID() const;

    /// Chooses by the code of a function key, 112 to 123. True, so that the key is consumed, for every such code, even
    /// beyond the end of the list. Screens pass on their keys; the list handles its own.
    bool SelectByKeyCode(int keyCode, Qt::KeyboardModifiers modifiers);
    /// The code of a key for `SelectByKeyCode`; 0 if it is not F1 to F12.
    static int KeyCodeOf(int key);

signals:
    void Change();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool takeKey(const QKeyEvent &event);
};
