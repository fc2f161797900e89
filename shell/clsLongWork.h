#pragma once

#include <QElapsedTimer>

/// Work on the window's thread that takes the user's time: a redraw, an export, a large claim that is opened.
/// It runs as long as such an object lives. The timers go on firing below it, and whoever must not meet a half-done
/// state asks here first. The busy cursor comes when the work has lasted a moment, so that short work does not flicker.
class clsLongWork {
public:
    clsLongWork();
    ~clsLongWork();
    clsLongWork(const clsLongWork &) = delete;
    clsLongWork &operator=(const clsLongWork &) = delete;

    static bool isRunning();

    /// Shows the busy cursor if the work has lasted long enough; to be called at its steps.
    static void showWaiting();
    /// Takes the busy cursor away while the user is asked something; the next step brings it back.
    static void hideWaiting();

private:
    QElapsedTimer m_started;
    bool m_waitingShows = false;
};
