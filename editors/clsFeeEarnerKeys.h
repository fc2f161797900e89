#pragma once

#include <QObject>

class frmScreen;

/// Lets function keys choose the fee earner from every field of a screen, before the field can use the key itself, as
/// lists use F4. Does nothing while the list of fee earners is hidden. Owned by the screen.
class clsFeeEarnerKeys final : public QObject {
public:
    explicit clsFeeEarnerKeys(frmScreen &screen);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    frmScreen &m_screen;
};
