#pragma once

#include <QObject>

class frmSection;

/// Function keys choose the fee earner from every field of a screen, before any of them takes the key for itself, as
/// lists do with F4. Where the list of fee earners isn't shown they do nothing. It belongs to the screen.
class clsFeeEarnerKeys final : public QObject {
public:
    explicit clsFeeEarnerKeys(frmSection &screen);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    frmSection &m_screen;
};
