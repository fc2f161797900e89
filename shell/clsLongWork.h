#pragma once

#include <QElapsedTimer>

/// Long work on the GUI thread, such as a redraw, an export or the opening of a large claim. It runs for the lifetime
/// of such an object. Timers still fire during it, so code that must not see a half-finished state checks this class
/// first. The busy cursor appears only after a moment, so that it doesn't flicker in short work.
class clsLongWork {
public:
    clsLongWork();
    ~clsLongWork();
    clsLongWork(const clsLongWork &) = delete;
    clsLongWork &operator=(const clsLongWork &) = delete;

    static bool isRunning();

    /// Shows the busy cursor if the work has lasted long enough; call at each step.
    static void showWaiting();
    /// Hides the busy cursor while the user is asked something; the next step shows it again.
    static void hideWaiting();

private:
    QElapsedTimer m_started;
    bool m_waitingShows = false;
};
