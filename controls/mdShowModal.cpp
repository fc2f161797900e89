#include "controls/mdShowModal.h"

#include "controls/mdLargestWindow.h"
#include "controls/oVeil.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>

namespace {

/// The window that the new one stands over: the active one, or the one it was made for.
QWidget *windowBelow(const QDialog &form)
{
    QWidget *below = QApplication::activeModalWidget();
    if (!below)
        below = QApplication::activeWindow();
    if (!below && form.parentWidget())
        below = form.parentWidget()->window();
    return below == &form ? nullptr : below;
}

void place(QDialog &form, const QWidget *below)
{
    const QScreen *screen = below ? below->screen() : form.screen();
    const QRect room = screen->availableGeometry();
    const QSize wanted = form.testAttribute(Qt::WA_Resized) ? form.size() : form.sizeHint();
    form.resize(wanted.boundedTo(mdLargestWindow(*screen)).expandedTo(form.minimumSizeHint()));
    QRect frame = form.rect();
    frame.moveCenter(below ? below->frameGeometry().center() : room.center());
    frame.moveLeft(qBound(room.left(), frame.left(), qMax(room.left(), room.right() + 1 - frame.width())));
    frame.moveTop(qBound(room.top(), frame.top(), qMax(room.top(), room.bottom() + 1 - frame.height())));
    form.move(frame.topLeft());
}

} // namespace

void mdShowModal(QDialog &form)
{
    QWidget *below = windowBelow(form);
    place(form, below);
    const oVeil veil(below);
    form.exec();
}
