#include "shell/clsLongWork.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>

namespace {

constexpr int PatienceMilliseconds = 200;

int depth = 0;
bool waitingShows = false;
QElapsedTimer started;

} // namespace

clsLongWork::clsLongWork()
{
    if (++depth == 1)
        started.start();
}

clsLongWork::~clsLongWork()
{
    if (--depth == 0)
        hideWaiting();
}

bool clsLongWork::isRunning()
{
    return depth > 0;
}

void clsLongWork::showWaiting()
{
    if (depth == 0 || waitingShows || started.elapsed() < PatienceMilliseconds)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    waitingShows = true;
}

void clsLongWork::hideWaiting()
{
    if (waitingShows)
        QGuiApplication::restoreOverrideCursor();
    waitingShows = false;
}
