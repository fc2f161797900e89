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
    // The splash stays alive, hidden, to the end; the end is the main window's to tell.
    setQuitOnLastWindowClosed(false);
    // The desktop may yet change its mind about ending the session, so the program only makes sure of the work.
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
    // An end that came before the first event would be forgotten by the loop.
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
    // The user still reads about a failure: its copy is written, and the end is that failure's.
    if (m_failing)
        return end(1);
    endWithCopy(0);
}

void oApplication::endWithCopy(int status)
{
    if (m_ending)
        return;
    const clsRecoveredCopy copy = recoveredCopy();
    // First, so that the log shows no box any more.
    end(status);
    try {
        tellWithoutBox(mdRecoveredCopyMessage(copy));
    } catch (...) {
        // The copy is what counts.
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
    // Only the desktop sends this one, and only when the session is over.
    if (event->type() == QEvent::Quit) {
        endUnasked();
        return true;
    }
    return QApplication::event(event);
}

void oApplication::fail(const std::exception_ptr &failure)
{
    // What fails while the user still reads the first message follows from the first failure.
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
    // Whatever becomes of the copy, the end goes on.
    try {
        return writeRecoveredCopy ? writeRecoveredCopy() : clsRecoveredCopy();
    } catch (...) {
        return {};
    }
}
