// Uses the program at random: see CONTRIBUTING.md, "Long-running tests".
//
//     soak [--seed S] [--actions N] [--samples] [--trail]

#include "tests/soak/clsSoak.h"
#include "wordexport/mdOfficeProgram.h"

#include <QStandardPaths>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <unistd.h>

namespace {

clsSoak *running = nullptr;

/// A Qt warning is an error in our code.
void failOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // Except these: the offscreen platform reports everything that needs a window manager, such as raising a menu.
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtDebugMsg && type != QtInfoMsg && running)
        running->fail(QStringLiteral("The toolkit warns: ") + message);
}

void printTrail()
{
    if (clsSoak *soak = std::exchange(running, nullptr))
        soak->trail().printLast();
}

/// The program has crashed or hangs. Printing is not safe in a signal handler, but there is nothing left to lose.
void onSignal(int signal)
{
    std::fprintf(stderr, signal == SIGALRM ? "FAILED: the action does not end\n" : "FAILED: signal %d\n", signal);
    printTrail();
    std::signal(signal, SIG_DFL);
    std::raise(signal == SIGALRM ? SIGABRT : signal);
}

bool read(int argc, char **argv, clsSoakOptions &options)
{
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--trail") == 0)
            options.tellsAll = true;
        else if (std::strcmp(argv[i], "--samples") == 0)
            options.samplesOnly = true;
        else if (hasValue && std::strcmp(argv[i], "--seed") == 0)
            options.seed = std::strtoull(argv[++i], nullptr, 10);
        else if (hasValue && std::strcmp(argv[i], "--actions") == 0)
            options.actions = std::atoi(argv[++i]);
        else
            return false;
    }
    return options.actions > 0;
}

} // namespace

int main(int argc, char **argv)
{
    clsSoakOptions options;
    if (!read(argc, argv, options)) {
        std::fprintf(stderr, "usage: soak [--seed S] [--actions N] [--samples] [--trail]\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QStandardPaths::setTestModeEnabled(true);
    // The timing of another program would make a seed unrepeatable.
    const clsOfficeProgramScope noOfficeProgram({}, 0);
    clsSoak soak(options);
    running = &soak;
    std::signal(SIGALRM, onSignal);
    // The sanitizers handle the other signals themselves, and then abort.
    std::signal(SIGABRT, onSignal);
#if !defined(__SANITIZE_ADDRESS__)
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE})
        std::signal(signal, onSignal);
#endif
    qInstallMessageHandler(failOnWarning);
    const int status = soak.run();
    running = nullptr;
    return status;
}
