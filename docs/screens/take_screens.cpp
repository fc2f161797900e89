// Takes a picture of every window of the program on a claim, one file for each: take_screens CLAIM FOLDER.
// The windows are the program's own, drawn without a display; only the claim and the time are made up.

#include "controls/frmMessageBox.h"
#include "controls/mdTheme.h"
#include "editors/mdSections.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "shell/clsWindowUserInterface.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/mdClock.h"
#include "shell/mdGlobals.h"
#include "shell/mdProgramFolder.h"
#include "wordexport/frmExportToWord.h"

#include <QApplication>
#include <QDir>
#include <QTest>

#include <cstdio>

namespace {

class clsPictures {
public:
    explicit clsPictures(const QString &folder)
        : m_folder(folder)
    { }

    /// Shows the window until it is drawn, and takes its picture.
    void take(QWidget &window, const QString &name)
    {
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            fail(name, "does not come up");
        QTest::qWait(50);
        if (!window.grab().save(QStringLiteral("%1/%2.png").arg(m_folder, name)))
            fail(name, "can't be written");
    }
    bool complete() const { return m_complete; }

private:
    void fail(const QString &name, const char *why)
    {
        std::fprintf(stderr, "%s %s.\n", qPrintable(name), why);
        m_complete = false;
    }

    QString m_folder;
    bool m_complete = true;
};

void takeSections(clsPictures &pictures, frmMain &main)
{
    for (const QString &section : mdSectionTexts())
        if (const std::unique_ptr<QDialog> screen {mdCreateScreen(section, &main)}) {
            screen->resize(screen->sizeHint());
            pictures.take(*screen, mdScreenName(section));
        }
}

void takeBoxes(clsPictures &pictures, frmMain &main)
{
    frmMessageBox question(&main);
    question.Initialise(QStringLiteral("Save changes to this form before closing?"), QStringLiteral("Save?"),
        clsUserInterface::YesNoCancel, 1, 0);
    pictures.take(question, QStringLiteral("frmMessageBox"));
    question.close();
    frmAbout about(true, &main);
    pictures.take(about, QStringLiteral("frmAbout"));
    about.close();
    frmExportToWord exportToWord(&main);
    pictures.take(exportToWord, QStringLiteral("frmExportToWord"));
    exportToWord.close();
}

bool takeAll(const QString &claim, const QString &folder)
{
    clsPictures pictures(folder);
    frmSplash splash;
    pictures.take(splash, QStringLiteral("frmSplash"));
    splash.hide();
    frmMain main;
    main.Load(claim);
    // Whoever looks at the pictures need not know where they were taken.
    Form->path = QStringLiteral("/home/costs/Claims/2026/Hartwell disrepair LA-20417.zr3");
    Form->ExportPath = QStringLiteral("/home");
    main.setWindowState(Qt::WindowNoState);
    main.resize(1366, 740);
    main.show();
    main.PreviewScheduleOfTime();
    pictures.take(main, QStringLiteral("frmMain"));
    takeSections(pictures, main);
    takeBoxes(pictures, main);
    main.PreviewAdditionalInformation();
    pictures.take(main, QStringLiteral("frmMain-notes"));
    return pictures.complete();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: take_screens CLAIM FOLDER\n", stderr);
        return 2;
    }
    SetProgramFolder(QStringLiteral(ZR3_PROGRAM_FOLDER));
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZR3_SCREEN);
    // Without a window manager the platform has something to say on each window.
    qputenv("QT_LOGGING_RULES", "default.warning=false;default.info=false;default.debug=false");
    QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    mdApplyTheme(application);
    clsWindowUserInterface user;
    const clsUserInterfaceScope scope(user);
    const bool complete = takeAll(QFile::decodeName(argv[1]), QFile::decodeName(argv[2]));
    Form.reset();
    Preferences.reset();
    return complete ? 0 : 1;
}
