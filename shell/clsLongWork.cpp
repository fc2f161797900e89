#include "shell/clsLongWork.h"

#include <QCursor>
#include <QGuiApplication>

namespace {

constexpr int PatienceMilliseconds = 200;

// The running work. Timers and boxes that ask for it have no access to an object of it.
clsLongWork *outermost = nullptr;

} // namespace

clsLongWork::clsLongWork()
{
    if (outermost)
        return;
    outermost = this;
    m_started.start();
}

clsLongWork::~clsLongWork()
{
    if (outermost != this)
        return;
    hideWaiting();
    outermost = nullptr;
}

bool clsLongWork::isRunning()
{
    return outermost;
}

void clsLongWork::showWaiting()
{
    if (!outermost || outermost->m_waitingShows || outermost->m_started.elapsed() < PatienceMilliseconds)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    outermost->m_waitingShows = true;
}

void clsLongWork::hideWaiting()
{
    if (!outermost || !outermost->m_waitingShows)
        return;
    QGuiApplication::restoreOverrideCursor();
    outermost->m_waitingShows = false;
}
