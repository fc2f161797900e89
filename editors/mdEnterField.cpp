#include "editors/mdEnterField.h"

#include <QWidget>

namespace {

QWidget *entranceOf(QWidget &field)
{
    QWidget *part = &field;
    while (part->focusProxy())
        part = part->focusProxy();
    if (part->isEnabled())
        return part;
    const QList<QWidget *> parts = field.findChildren<QWidget *>();
    for (QWidget *other : parts)
        if (other->isEnabled() && other->isVisibleTo(&field) && (other->focusPolicy() & Qt::TabFocus))
            return other;
    return nullptr;
}

} // namespace

bool mdEnterField(QWidget &field)
{
    QWidget *entrance = entranceOf(field);
    if (!entrance)
        return false;
    entrance->setFocus(Qt::ShortcutFocusReason);
    entrance->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    return true;
}
