#pragma once

#include "editors/oScreenList.h"

#include <memory>

class clsZR3FeeEarner;

/// The list of the claim's fee earners. The first 96 of them are each chosen by a function key with or without Shift,
/// Control and Alt, which stands before their reference. It fills itself when it is made and starts on the fee earner
/// that the user chose last, in whichever list of this kind.
class oFeeEarnerCombo : public oScreenList {
    Q_OBJECT

public:
    explicit oFeeEarnerCombo(QWidget *parent = nullptr);

    /// Fills the list anew and selects the entry that was chosen last, else the first.
    void fill();

    /// The chosen fee earner, or nothing in a claim without any.
    std::shared_ptr<clsZR3FeeEarner> SelectedFeeEarner() const;
    /// Chooses a fee earner; none for nothing.
    void setSelectedFeeEarner(const std::shared_ptr<clsZR3FeeEarner> &feeEarner);
    /// The identity of the chosen fee earner, or an empty text.
    QString SelectedFeeEarnerUniqueID() const;

    /// Chooses by a function key, whose codes are 112 to 123. True when the key is one, and so consumed, also where the
    /// list isn't as long. Screens pass their keys on to it; the list's own come by themselves.
    bool SelectByKeyCode(int keyCode, Qt::KeyboardModifiers modifiers);
    /// The code of a key as `SelectByKeyCode` takes it; 0 for one that is no function key from F1 to F12.
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
