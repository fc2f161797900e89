// The program with a user who types, saves and exports without pause until it is ended: see tests/long/ends.py.
//
//     ends_program type FOLDER CLAIM SPEED    numbers each word that it types, and writes number and moment into
//                                             FOLDER/typed; the journal is kept SPEED times as fast as in the program
//     ends_program next FOLDER                is started after such an end, opens what the bar offers, and saves it

#include "base/clsQuietUserInterface.h"
#include "base/mdEndSignals.h"
#include "base/mdGetResourceData.h"
#include "base/mdProgramFolder.h"
#include "commands/clsJournal.h"
#include "commands/clsNotStored.h"
#include "commands/mdFirmOffer.h"
#include "commands/mdRecoveredCopy.h"
#include "controls/mdApplyTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCustomButton.h"
#include "controls/oNoticeBar.h"
#include "editors/frmScreen.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "shell/clsJournalKeeper.h"
#include "shell/frmExportToWord.h"
#include "shell/frmMain.h"
#include "shell/oApplication.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QDir>
#include <QMetaMethod>
#include <QSessionManager>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <random>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int BetweenActions = 7; ///< in milliseconds

/// Answers Yes to every question.
class clsUser final : public clsQuietUserInterface {
public:
    explicit clsUser(QString folder)
        : m_folder(std::move(folder))
    { }

    Answer customMessage(const QString &, const QString &title, Buttons buttons, int, int) override
    {
        std::printf("box %s\n", qPrintable(title));
        return buttons == OKOnly ? OK : Yes;
    }
    Answer systemMessage(const QString &, const QString &title, SystemIcon, Buttons) override
    {
        std::printf("box %s\n", qPrintable(title));
        return OK;
    }
    QString chooseFileToSave(const QString &, const QString &) override { return m_folder + "/claims/new.zr3"; }

private:
    QString m_folder;
};

long long now()
{
    timespec time {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

/// Performs the next action whenever the program is ready for it.
class clsTypist : public QObject {
public:
    clsTypist(frmMain &window, const QString &folder)
        : m_window(window)
        , m_log(::open(qPrintable(folder + "/typed"), O_WRONLY | O_CREAT | O_APPEND, 0600))
    {
        turn();
    }
    ~clsTypist() override { ::close(m_log); }

private:
    bool chance(int percent) { return int(m_dice() % 100) < percent; }
    void note(const char *what, int number = 0) const
    {
        char line[80];
        const int size = std::snprintf(line, sizeof line, "%s %d %lld\n", what, number, now());
        if (::write(m_log, line, size_t(size)) != size)
            std::abort();
    }

    /// Each has its own timer, since a timer that opens a screen does not fire again until the screen is closed.
    void turn()
    {
        QTimer::singleShot(BetweenActions, this, [this] {
            turn();
            act();
        });
    }
    void act()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *screen = qobject_cast<frmScreen *>(modal))
            return type(*screen);
        if (auto *dialog = qobject_cast<frmExportToWord *>(modal))
            return exportOnce(*dialog);
        if (modal)
            return;
        if (chance(30)) {
            note("save");
            m_window.Save();
            note("saved");
        } else if (chance(20)) {
            note("export");
            m_window.ExportToWord();
            note("exported");
        } else {
            m_window.tbSubSection_Click(1, QStringLiteral("Details of Work"));
        }
    }
    void type(frmScreen &screen)
    {
        if (chance(4))
            return screen.Close();
        auto &box = screen.Box<oAllPurposeBox>("txtDetailsOfCase");
        box.setText(box.Text() + QStringLiteral("zq%1 ").arg(++m_number));
        note("word", m_number);
    }
    void exportOnce(frmExportToWord &dialog)
    {
        if (!std::exchange(m_exported, !m_exported))
            dialog.findChild<oCustomButton *>(QStringLiteral("cmdExport"))->click();
        else
            dialog.reject();
    }

    frmMain &m_window;
    int m_log;
    std::mt19937 m_dice {std::random_device()()};
    int m_number = 0;
    bool m_exported = false;
};

void makeFolder(const QString &folder)
{
    for (const char *name : {"program/Databases", "program/Logs", "claims", "export"})
        QDir(folder).mkpath(QLatin1String(name));
    SetProgramFolder(folder + "/program");
    QFile::link(QStringLiteral(ZR3_TEMPLATES), folder + "/program/Templates");
    QFile file(folder + "/program/Databases/Preferences Database.vzp");
    if (!file.exists() && file.open(QIODevice::WriteOnly))
        file.write(
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
}

/// A log-off by a desktop that then ends the program.
void logOff(oApplication &application)
{
    alignas(QSessionManager) char noSession[sizeof(QSessionManager)] = {};
    void *arguments[] = {nullptr, noSession};
    const QMetaMethod signal = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest);
    QMetaObject::activate(&application, signal.methodIndex(), arguments);
    ::raise(SIGKILL);
}

/// Prints the bar's message, opens the claim, saves it, and exits.
void takeUp(frmMain &window)
{
    auto &bar = *window.findChild<oNoticeBar *>();
    std::printf("bar %s\n", bar.isVisible() ? qPrintable(bar.Sentence()) : "-");
    for (oCustomButton *button : bar.findChildren<oCustomButton *>())
        if (bar.isVisible() && button->Caption() == QLatin1String("Open"))
            button->click();
    std::printf("claim %s\n", qPrintable(Form->DetailsOfWork.DetailsOfCase()));
    for (const clsTypedTexts &texts : NotStored().all())
        for (const auto &[property, text] : texts.fields)
            std::printf("typed %s\n", qPrintable(text));
    window.Save();
    window.close();
}

} // namespace

int main(int argc, char **argv)
{
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    int count = 1;
    oApplication application(count, argv);
    mdApplyTheme(application);
    clsUser user(folder);
    const clsUserInterfaceScope scope(user);
    const clsProcessListScope noProcesses([] { return QStringList(); });
    makeFolder(folder);
    application.writeRecoveredCopy = [] {
        Journal().flush();
        return WriteRecoveredCopy();
    };
    const clsEndSignalScope endSignals([&] {
        if (QFile::exists(folder + "/log-off"))
            logOff(application);
        application.endUnasked();
    });
    // The bar is for the recovery copy.
    mdFirmOfferAnswered();
    auto window = std::make_unique<frmMain>();
    QObject::connect(window.get(), &frmMain::Closed, &application, [&application] { application.end(0); });
    if (mode == QLatin1String("type") && argc == 5) {
        window->Load(QString::fromLocal8Bit(argv[3]));
        window->journal().between /= std::atoi(argv[4]);
        window->journal().afterStep /= std::atoi(argv[4]);
        window->journal().begin();
    } else {
        window->Load({});
    }
    window->show();
    std::unique_ptr<clsTypist> typist;
    if (mode == QLatin1String("type"))
        typist = std::make_unique<clsTypist>(*window, folder);
    else
        QTimer::singleShot(0, window.get(), [&] { takeUp(*window); });
    const int status = application.run();
    typist.reset();
    window.reset();
    Form.reset();
    Preferences.reset();
    return status;
}
