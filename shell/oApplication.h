#pragma once

#include "commands/clsRecoveredCopy.h"

#include <QApplication>

#include <exception>
#include <functional>

/// The application with its event loop and the handler for uncaught errors. After an uncaught error the user gets a
/// message, the claim's unsaved work is set aside and the program ends with status 1. No further events are delivered,
/// so that no window continues in an inconsistent state.
class oApplication : public QApplication {
    Q_OBJECT

public:
    oApplication(int &argc, char **argv);

    /// The application of this process; null if it is not an oApplication.
    static oApplication *instance();
    /// True once this process is ending.
    static bool ending();

    /// Writes the recovered copy of a claim with unsaved changes.
    std::function<clsRecoveredCopy()> writeRecoveredCopy;

    /// Runs a step outside the event loop with the same error handling.
    void guarded(const std::function<void()> &step);
    /// Runs the event loop until the program ends; returns the exit status.
    int run();
    /// Ends the program: all loops end, and no further event is delivered.
    void end(int status);
    /// Ends the program without questions. Unsaved changes are set aside; the log and standard error say where.
    void endUnasked();

    bool notify(QObject *receiver, QEvent *event) override;

protected:
    bool event(QEvent *event) override;

private:
    void fail(const std::exception_ptr &failure);
    clsRecoveredCopy recoveredCopy() const;
    void endWithCopy(int status);

    bool m_failing = false;
    bool m_ending = false;
    int m_status = 0;
};
