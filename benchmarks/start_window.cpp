// Starts the desktop program like a user, prints when its main window is usable, and ends. Usable means that the window
// has been painted and has nothing left to do.

#include "base/mdProgramFolder.h"
#include "shell/mdSubMain.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

class clsFirstPaint final : public QObject {
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && object->objectName() == QLatin1String("frmMain"))
            QTimer::singleShot(0, [] {
                std::puts("usable");
                std::fflush(stdout);
                std::_Exit(0);
            });
        return false;
    }
};

void watchForTheWindow()
{
    static clsFirstPaint firstPaint;
    qApp->installEventFilter(&firstPaint);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForTheWindow)

int main(int argc, char **argv)
{
    SetProgramFolder(QStringLiteral(ZR3_PROGRAM_FOLDER));
    return RunProgram(argc, argv);
}
