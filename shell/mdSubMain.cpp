#include "shell/mdSubMain.h"

#include "base/mdCommandLine.h"
#include "base/mdCustomMessages.h"
#include "base/mdEndSignals.h"
#include "base/mdNetworkPath.h"
#include "base/mdProgramFolder.h"
#include "commands/clsJournal.h"
#include "commands/mdRecoveredCopy.h"
#include "controls/mdApplyTheme.h"
#include "controls/oFooterBar.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "shell/clsLostWindow.h"
#include "shell/clsWindowUserInterface.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/oApplication.h"

#include <QDir>
#include <QIcon>

// Outside any namespace, as the macro requires; it also makes the linker keep the pictures.
static void initialiseIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

/// The claim requested on the command line, or the name in it that can't be used.
struct clsAskedFor {
    clsAskedFor(int argc, char **argv)
    {
        const QByteArrayList names(argv + 1, argv + argc);
        QStringList arguments;
        for (const QByteArray &name : names)
            arguments << QFile::decodeName(name);
        refused = NameNotInUtf8(names);
        if (refused.isEmpty() && QDir::isRelativePath(arguments.join(u' ')) && !names.isEmpty())
            refused = NameNotInUtf8({CurrentFolderName()});
        if (refused.isEmpty())
            path = CommandLinePath(arguments);
    }

    QString path;
    QByteArray refused;
};

QIcon programIcon()
{
    initialiseIcons();
    QIcon icon;
    for (const char *side : {"16", "22", "24", "32", "48", "64", "128", "256"})
        icon.addFile(QStringLiteral(":/icons/velmor-zr3-") + QLatin1String(side) + QStringLiteral(".png"));
    return icon;
}

/// Destroys the windows first, then the data they show.
struct clsProgram {
    frmSplash splash;
    std::unique_ptr<frmMain> main;

    ~clsProgram()
    {
        main.reset();
        Form.reset();
        Preferences.reset();
    }
};

void showMain(clsProgram &program, oApplication &application, clsWindowUserInterface &user, const clsAskedFor &claim)
{
    program.main = std::make_unique<frmMain>();
    frmMain *window = program.main.get();
    QObject::connect(window, &frmMain::Closed, &application, [&application] { application.end(0); });
    user.setProgressDisplay({
        [footer = window->footer()](
            int value, int maximum, const QString &text) { footer->showProgress(value, maximum, text); },
        [footer = window->footer()] { footer->clearProgress(); },
        [footer = window->footer()](const QString &line) { footer->showLine(line); },
    });
    window->Load(claim.path);
    // The system may have requested the end while a box was open.
    if (oApplication::ending())
        return;
    window->show();
    program.splash.StepAside();
    if (!claim.refused.isEmpty())
        mdCustomMessages(RefusalOfName(claim.refused), QStringLiteral("File Name"));
}

} // namespace

int RunProgram(int argc, char **argv)
{
    MakeSizeLimitAnError();
    // The whole command line is the path of a claim; there are no options, not even the toolkit's.
    const clsAskedFor claim(argc, argv);
    int nameOnly = 1;
    oApplication application(nameOnly, argv);
    mdApplyTheme(application);
    QApplication::setWindowIcon(programIcon());
    // The desktop identifies the program's windows by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("velmor-zr3"));
    clsWindowUserInterface user;
    const clsUserInterfaceScope scope(user);
    application.writeRecoveredCopy = [] {
        // Includes text typed in open screens, which the copy of the claim lacks.
        Journal().flush();
        return WriteRecoveredCopy();
    };
    const clsEndSignalScope endSignals([&application] { application.endUnasked(); });
    const clsLostWindow lostWindow([&application] { application.endUnasked(); });

    if (IsNetworkPath(ProgramFolder())) {
        mdCustomMessages(
            QStringLiteral("Velmor ZR3 cannot be run through a network. Please install and run the program "
                           "on this machine directly."),
            QStringLiteral("Network Error"));
        return 1;
    }
    clsProgram program;
    QObject::connect(
        &program.splash, &frmSplash::Initialised, &application, [&] { showMain(program, application, user, claim); });
    program.splash.show();
    const int status = application.run();
    user.setProgressDisplay({});
    return status;
}
