#include "shell/oApplication.h"

#include "base/clsProgramEnd.h"
#include "base/clsUserInterface.h"
#include "base/mdLog.h"
#include "base/mdPrint.h"
#include "base/mdRunTimeErrorOf.h"
#include "commands/mdRunTimeErrorMessage.h"
#include "shell/clsLongWork.h"

namespace {

void tellWithoutBox(QString text)
{
    if (text.isEmpty())
        return;
    text.replace(QStringLiteral("\r\n\r\n"), QStringLiteral(" ")).replace(QStringLiteral("\r\n"), QStringLiteral(", "));
    mdPrint(stderr, QStringLiteral("Velmor ZR3: ") + text + QStringLiteral("\r\n"));
    WriteLog(text);
}

} // namespace

oApplication::oApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    // The splash stays alive, hidden; the main window decides when the program ends.
    setQuitOnLastWindowClosed(false);
    // The desktop may still cancel the end of the session, so this only saves a copy.
    connect(
        this, &QGuiApplication::commitDataRequest, this, [this] { recoveredCopy(); }, Qt::DirectConnection);
}

oApplication *oApplication::instance()
{
    return qobject_cast<oApplication *>(QCoreApplication::instance());
}

bool oApplication::ending()
{
    const oApplication *application = instance();
    return application != nullptr && application->m_ending;
}

void oApplication::guarded(const std::function<void()> &step)
{
    try {
        step();
    } catch (const clsProgramEnd &end) {
        endWithCopy(end.exitStatus);
    } catch (...) {
        fail(std::current_exception());
    }
}

int oApplication::run()
{
    // An exit requested before the event loop starts would be lost.
    if (!m_ending)
        exec();
    m_ending = true;
    return m_status;
}

void oApplication::end(int status)
{
    if (m_ending)
        return;
    m_ending = true;
    m_status = status;
    exit(status);
}

void oApplication::endUnasked()
{
    // The user is still reading an error message: its copy is written, and the program ends with its status.
    if (m_failing)
        return end(1);
    endWithCopy(0);
}

void oApplication::endWithCopy(int status)
{
    if (m_ending)
        return;
    const clsRecoveredCopy copy = recoveredCopy();
    // First, so that the log can't show a box any more.
    end(status);
    try {
        tellWithoutBox(mdRecoveredCopyMessage(copy));
    } catch (...) {
        // Only the copy is essential.
    }
}

bool oApplication::notify(QObject *receiver, QEvent *event)
{
    if (m_ending)
        return true;
    bool result = true;
    guarded([&] { result = QApplication::notify(receiver, event); });
    return result;
}

bool oApplication::event(QEvent *event)
{
    // Only the desktop sends this event, when the session ends.
    if (event->type() == QEvent::Quit) {
        endUnasked();
        return true;
    }
    return QApplication::event(event);
}

void oApplication::fail(const std::exception_ptr &failure)
{
    // Errors that occur while the first message is open follow from the first error.
    if (m_failing || m_ending)
        return;
    m_failing = true;
    const clsLongWork work;
    const QString text = mdRunTimeErrorMessage(mdRunTimeErrorOf(failure), recoveredCopy());
    UserInterface().systemMessage(
        text, QStringLiteral("Velmor ZR3"), clsUserInterface::Critical, clsUserInterface::OKOnly);
    end(1);
}

clsRecoveredCopy oApplication::recoveredCopy() const
{
    // The program must end even if the copy fails.
    try {
        return writeRecoveredCopy ? writeRecoveredCopy() : clsRecoveredCopy();
    } catch (...) {
        return {};
    }
}
