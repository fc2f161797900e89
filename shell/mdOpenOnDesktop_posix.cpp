#include "shell/mdOpenOnDesktop.h"

#include "shell/clsLongWork.h"

#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <unistd.h>

namespace {

/// The opener may run as long as the document is open; if it ends later, that is not a failure.
constexpr int LongestSearch = 10000;
constexpr int LookAgain = 200;

void runOutsideLongWork(const std::function<void()> &step)
{
    if (clsLongWork::isRunning())
        QTimer::singleShot(LookAgain, [step] { runOutsideLongWork(step); });
    else
        step();
}

} // namespace

bool mdOpenOnDesktop(const QUrl &url, const std::function<void()> &failed)
{
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return QDesktopServices::openUrl(url);
    // Started here and not by the toolkit, which would ignore the opener's exit status. It has no parent and its own
    // session, because the opened program must not end with this one.
    auto *process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process,
        [process, failed, search = QDeadlineTimer(LongestSearch)](int status, QProcess::ExitStatus ending) {
            process->deleteLater();
            if ((status != 0 || ending != QProcess::NormalExit) && !search.hasExpired())
                runOutsideLongWork(failed);
        });
    process->setChildProcessModifier([] { ::setsid(); });
    process->start(opener, {QString::fromLatin1(url.toEncoded())});
    if (process->waitForStarted())
        return true;
    delete process;
    return false;
}
