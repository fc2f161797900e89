#include "editors/clsFeeEarnerKeys.h"

#include "editors/frmScreen.h"
#include "editors/oFeeEarnerCombo.h"

#include <QApplication>
#include <QKeyEvent>

clsFeeEarnerKeys::clsFeeEarnerKeys(frmScreen &screen)
    : QObject(&screen)
    , m_screen(screen)
{
    qApp->installEventFilter(this);
}

bool clsFeeEarnerKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *part = qobject_cast<const QWidget *>(watched);
    if (!part || part->window() != &m_screen)
        return false;
    auto &feeEarners = m_screen.Box<oFeeEarnerCombo>("cmbFeeEarner");
    const auto *key = static_cast<QKeyEvent *>(event);
    return !feeEarners.isHidden()
        && feeEarners.SelectByKeyCode(oFeeEarnerCombo::KeyCodeOf(key->key()), key->modifiers());
}
