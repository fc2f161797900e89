#include "controls/mdShowModal.h"

#include "controls/mdLargestWindow.h"
#include "controls/mdTheme.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScreen>

#include <utility>

namespace {

/// The shade over a window that waits for the one above it.
class oVeil final : public QWidget {
public:
    explicit oVeil(QWidget *below)
        : QWidget(below)
    {
        setObjectName(QStringLiteral("oVeil"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(below->rect());
        below->installEventFilter(this);
        raise();
        show();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return QWidget::eventFilter(watched, event);
    }
    void paintEvent(QPaintEvent *) override
    {
        QColor shade = Theme::Ink;
        shade.setAlphaF(0.16F);
        QPainter(this).fillRect(rect(), shade);
    }
};

/// What is to be done when the innermost modal window has gone, and whether somebody is already seeing to it.
struct clsFollowUp {
    QDialog *waitedFor = nullptr;
    std::function<void()> step;
    bool running = false;
};

clsFollowUp &followUp()
{
    static clsFollowUp theOne;
    return theOne;
}

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

/// Runs what was asked for while a window was closing, and what is asked for in turn, until nothing is left.
void runFollowUps()
{
    clsFollowUp &next = followUp();
    if (next.running)
        return;
    const QScopedValueRollback<bool> here(next.running, true);
    while (const auto step = std::exchange(next.step, nullptr))
        step();
}

} // namespace

void mdShowModal(QDialog &form)
{
    QWidget *below = windowBelow(form);
    place(form, below);
    {
        // Whatever closes the window below meanwhile takes the veil with it.
        const QPointer<oVeil> veil(below && below->isVisible() ? new oVeil(below) : nullptr);
        const auto unveil = qScopeGuard([&veil] { delete veil; });
        const QScopedValueRollback<QDialog *> waiting(followUp().waitedFor, &form);
        form.exec();
    }
    runFollowUps();
}

void mdUnloadAndThen(QDialog &form, std::function<void()> step)
{
    if (followUp().waitedFor != &form) {
        form.done(QDialog::Accepted);
        step();
        return;
    }
    followUp().step = std::move(step);
    form.done(QDialog::Accepted);
}
