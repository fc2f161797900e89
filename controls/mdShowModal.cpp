#include "controls/mdShowModal.h"

#include "controls/mdLargestWindow.h"
#include "controls/mdPointerScreen.h"
#include "controls/oVeil.h"

#include <QApplication>
#include <QDialog>

namespace {

/// The window below the new one: the one in front, or the new one's parent.
QWidget *windowBelow(const QDialog &form)
{
    QWidget *below = mdWindowInFront();
    if (!below && form.parentWidget())
        below = form.parentWidget()->window();
    return below == &form ? nullptr : below;
}

void place(QDialog &form, const QWidget *below)
{
    const QScreen *screen = below ? below->screen() : mdPointerScreen();
    const QRect room = screen->availableGeometry();
    // The size of the desktop's frame, taken from the window below: that of the new window is unknown until it is
    // shown.
    const QSize edges = below ? below->frameGeometry().size() - below->size() : QSize(0, 0);
    const QSize largest = mdLargestWindow(*screen).boundedTo(room.size() - edges);
    const QSize wanted = form.testAttribute(Qt::WA_Resized) ? form.size() : form.sizeHint();
    form.resize(wanted.boundedTo(largest).expandedTo(form.minimumSizeHint()));
    QRect frame(QPoint(), form.size() + edges);
    frame.moveCenter(below ? below->frameGeometry().center() : room.center());
    frame.moveLeft(qBound(room.left(), frame.left(), qMax(room.left(), room.right() + 1 - frame.width())));
    frame.moveTop(qBound(room.top(), frame.top(), qMax(room.top(), room.bottom() + 1 - frame.height())));
    form.move(frame.topLeft());
}

} // namespace

QWidget *mdWindowInFront()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget *active = QApplication::activeWindow())
        return active;
    // Another program is in front. A box without a parent would appear as a separate window beside the program's.
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    return nullptr;
}

int mdShowModal(QDialog &form)
{
    QWidget *below = windowBelow(form);
    place(form, below);
    const oVeil veil(below);
    return form.exec();
}
