#pragma once

#include "commands/clsRecoveredCopy.h"

#include <QApplication>

#include <exception>
#include <functional>

/// The application: its event loop, and the net below everything that runs in it. A failure that nothing below has
/// caught is told to the user, the claim's unsaved work is set aside, and the program ends with status 1; from then on
/// no event reaches anything, so that no window works on with a state that is only half done.
class oApplication : public QApplication {
    Q_OBJECT

public:
    oApplication(int &argc, char **argv);

    /// The application of this process, or nothing where another kind of application runs.
    static oApplication *instance();
    /// True once this process is about to end by itself.
    static bool ending();

    /// Writes the copy of a claim with unsaved changes.
    std::function<clsRecoveredCopy()> writeRecoveredCopy;

    /// Runs a step that no event brings, over the same net.
    void guarded(const std::function<void()> &step);
    /// Runs the events until the program ends; its status.
    int run();
    /// Ends the program: all loops end, and no further event is delivered.
    void end(int status);
    /// Ends it where nobody can be asked any more; unsaved changes are set aside, and the log and standard error say
    /// where.
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
