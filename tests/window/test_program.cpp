#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "preview/mdPreview.h"
#include "preview/oPreviewGrid.h"
#include "shell/frmSplash.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"
#include "tests/window/clsProgramTest.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QAction>
#include <QScopeGuard>
#include <QTest>

#include <csignal>

Q_COREAPP_STARTUP_FUNCTION(startTicking)

namespace {

using Program = clsProgramTest;

} // namespace

TEST_F(Program, BeginsWithANewClaimAndEndsWhenItsWindowIsClosed)
{
    bool splashSeen = false;
    EXPECT_EQ(0, run({}, [&] {
        const auto *splash = topLevel<frmSplash>();
        splashSeen = splashSeen || (splash && splash->isVisible() && !topLevel<frmMain>());
        if (header().isEmpty() || !splash || splash->isVisible())
            return false;
        EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
        EXPECT_TRUE(topLevel<frmMain>()->windowState().testFlag(Qt::WindowMaximized));
        QList<int> icons;
        for (const QSize &size : topLevel<frmMain>()->windowIcon().availableSizes())
            icons << size.width();
        EXPECT_EQ((QList {16, 22, 24, 32, 48, 64, 128, 256}), icons);
        topLevel<frmMain>()->close();
        return true;
    }));
    EXPECT_TRUE(splashSeen);
}

TEST_F(Program, TheWholeCommandLineIsOnePath)
{
    const QString claim = path("claims/a claim with blanks.zr3");
    ASSERT_TRUE(QFile::copy(mdSamplePath(QStringLiteral("empty.zr3")), claim));
    const QByteArray whole = QFile::encodeName(claim);
    const QByteArray quoted = '"' + whole + '"';
    std::vector<QByteArray> inPieces;
    for (const QByteArray &piece : whole.split(' '))
        inPieces.push_back(piece);
    for (const std::vector<QByteArray> &arguments : {std::vector {whole}, std::vector {quoted}, inPieces})
        EXPECT_EQ(0, run(arguments, [&] {
            if (header().isEmpty())
                return false;
            EXPECT_EQ(claim + u'*', header());
            oApplication::instance()->end(0);
            return true;
        }));
}

TEST_F(Program, AClaimWhoseNameIsNoTextIsRefused)
{
    // Converted to text it would be the name of another file.
    ASSERT_TRUE(QFile::copy(mdSamplePath(QStringLiteral("empty.zr3")), path("claims/\xef\xbf\xbd.zr3")));
    for (const QByteArray &name : {QFile::encodeName(path("claims/")) + "\xff.zr3",
             "file://" + QFile::encodeName(path("claims/")).toPercentEncoding("/") + "%FF.zr3"}) {
        bool told = false;
        EXPECT_EQ(0, run({name}, [&] {
            QWidget *box = QApplication::activeModalWidget();
            if (box && box->windowTitle() == QStringLiteral("File Name")) {
                told = true;
                box->close();
            } else if (told && !header().isEmpty()) {
                EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
                oApplication::instance()->end(0);
                return true;
            }
            return false;
        }));
        EXPECT_TRUE(told) << name.constData();
    }
    struct sigaction action = {};
    ASSERT_EQ(0, ::sigaction(SIGXFSZ, nullptr, &action));
    EXPECT_EQ(SIG_IGN, action.sa_handler) << "a limit on the size of files is met as a full disk";
}

TEST_F(Program, NothingOnTheCommandLineIsASwitch)
{
    bool told = false;
    EXPECT_EQ(0, run({"-style", "windows"}, [&] {
        if (const frmMessageBox *box = messageBox()) {
            told = told || textOf(*box).contains(QDir::current().absoluteFilePath(QStringLiteral("-style windows")));
            press(box->windowTitle());
        } else if (!header().isEmpty()) {
            oApplication::instance()->end(0);
            return true;
        }
        return false;
    }));
    EXPECT_TRUE(told);
}

TEST_F(Program, ANetworkFolderIsRefusedBeforeTheSplash)
{
    SetProgramFolder(QStringLiteral("\\\\server\\share"));
    bool splashSeen = false;
    QString title;
    EXPECT_EQ(1, run({}, [&] {
        splashSeen = splashSeen || topLevel<frmSplash>();
        QWidget *box = QApplication::activeModalWidget();
        if (!box)
            return false;
        title = box->windowTitle();
        box->close();
        return true;
    }));
    EXPECT_EQ(QStringLiteral("Network Error"), title);
    EXPECT_FALSE(splashSeen);
    EXPECT_TRUE(QDir(path("config")).isEmpty());
    struct sigaction action = {};
    ASSERT_EQ(0, ::sigaction(SIGTERM, nullptr, &action));
    EXPECT_EQ(SIG_DFL, action.sa_handler) << "the signal goes to the system again";
}

TEST_F(Program, WithoutADatabaseFolderItEnds)
{
    QDir(path("program/Databases")).removeRecursively();
    bool windowSeen = false;
    EXPECT_EQ(1, run({}, [&] {
        windowSeen = windowSeen || (topLevel<frmMain>() && topLevel<frmMain>()->isVisible());
        return press(QStringLiteral("Folder Error"));
    }));
    EXPECT_FALSE(windowSeen);
}

TEST_F(Program, ADatabaseFolderThatGoesMeanwhileEndsItAtTheCloseOfThePreferences)
{
    QFile preferences(path("program/Databases/Preferences Database.vzp"));
    ASSERT_TRUE(preferences.open(QIODevice::ReadWrite));
    const QByteArray logged = preferences.readAll().replace("<log>False</log>", "<log>True</log>");
    ASSERT_TRUE(preferences.seek(0));
    preferences.write(logged);
    preferences.resize(logged.size());
    preferences.close();
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 22)); });
    const auto theSystemsClock = qScopeGuard([] { SetClock(nullptr); });
    ASSERT_TRUE(QDir(path("program")).mkpath(QStringLiteral("Logs")));
    QFile log(path("program/Logs/21-11-2026.txt"));
    ASSERT_TRUE(log.open(QIODevice::ReadWrite));

    bool opened = false, pressed = false;
    QStringList boxes;
    testing::internal::CaptureStderr();
    EXPECT_EQ(1, run({}, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal && !header().isEmpty() && !opened) {
            opened = true;
            Form->ClientDetails.Surname = QStringLiteral("Hartwell");
            QTimer::singleShot(0, topLevel<frmMain>()->findChild<QAction *>("mnuPreferences"), &QAction::trigger);
        } else if (modal && modal->objectName() == QLatin1String("frmPreferences") && !pressed) {
            pressed = true;
            QDir(path("program/Databases")).removeRecursively();
            auto *button = modal->findChild<QWidget *>("cmdClose");
            QTimer::singleShot(0, button, [button] { QTest::mouseClick(button, Qt::LeftButton); });
        } else if (const frmMessageBox *box = messageBox()) {
            boxes << textOf(*box);
            return press(QStringLiteral("Folder Error"));
        }
        return false;
    }));
    const QString told = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(QStringList {QStringLiteral("The folder ") + path("program/Databases")
                  + QStringLiteral(" does not exist. Please contact your system administrator")},
        boxes);
    const QDir state(path("state/Velmor/Recovered"));
    ASSERT_EQ(1, state.entryList(QDir::Files).size());
    const QString sentence = QStringLiteral("A copy of your claim with its unsaved changes is in: ")
        + state.filePath(state.entryList(QDir::Files).first());
    EXPECT_TRUE(told.contains(QStringLiteral("Velmor ZR3: ") + sentence + u'\n')) << qPrintable(told);
    EXPECT_TRUE(QString::fromUtf8(log.readAll()).contains(QStringLiteral("21/11/2026 14:03:22 : ") + sentence));
    EXPECT_FALSE(QFile::exists(path("program/Databases"))) << "the folder is the administrator's to make";
}

TEST_F(Program, WithoutPreferencesItEndsWithARunTimeError)
{
    QFile::remove(path("program/Databases/Preferences Database.vzp"));
    bool notRead = false;
    EXPECT_EQ(1, run({}, [&] {
        notRead = press(QStringLiteral("File Not Read")) || notRead;
        return press(QStringLiteral("Velmor ZR3"));
    }));
    EXPECT_TRUE(notRead);
}

TEST_F(Program, ASignalToEndSetsTheUnsavedClaimAside)
{
    bool signalled = false;
    EXPECT_EQ(0, run({}, [&] {
        if (header().isEmpty() || signalled)
            return false;
        Form->ClientDetails.Surname = QStringLiteral("Hartwell");
        signalled = true;
        std::raise(SIGTERM);
        return true;
    }));
    const QStringList copies = recovered();
    ASSERT_EQ(1, copies.size());
    QFile copy(path("program/Databases/Recovered/") + copies.first());
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_TRUE(copy.readAll().contains("Hartwell"));
}

TEST_F(Program, ASignalWhileTheFirstClaimIsOpenedShowsNoWindow)
{
    bool shown = false;
    EXPECT_EQ(0, run({"none.zr3"}, [&] {
        QWidget *box = QApplication::activeModalWidget();
        if (!box)
            return false;
        EXPECT_EQ(QStringLiteral("File Not Read"), box->windowTitle());
        // Everything that happens while the stack unwinds has happened by then.
        QObject::connect(oApplication::instance(), &QCoreApplication::aboutToQuit,
            [&shown] { shown = topLevel<frmMain>() && topLevel<frmMain>()->isVisible(); });
        std::raise(SIGTERM);
        return true;
    }));
    EXPECT_FALSE(shown);
    EXPECT_EQ(QStringList(), recovered());
}

TEST_F(Program, ASignalAtTheSaveQuestionDrawsNoPreview)
{
    bool asked = false;
    int rows = -1;
    EXPECT_EQ(0, run({}, [&] {
        QWidget *box = QApplication::activeModalWidget();
        if (!box && !header().isEmpty() && !asked) {
            asked = true;
            Form->ClientDetails.Surname = QStringLiteral("Hartwell");
            mdClearPreview();
            QTimer::singleShot(0, topLevel<frmMain>()->findChild<QAction *>("mnuNew"), &QAction::trigger);
        }
        if (!box)
            return false;
        EXPECT_EQ(QStringLiteral("Save?"), box->windowTitle());
        QObject::connect(
            oApplication::instance(), &QCoreApplication::aboutToQuit, [&rows] { rows = PreviewGrid->Rows(); });
        std::raise(SIGTERM);
        return true;
    }));
    EXPECT_EQ(0, rows);
    EXPECT_EQ(1, recovered().size());
}

TEST_F(Program, ASignalAtAQuestionOfTheExportWritesNoDocument)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("out")));
    ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
    for (const QString &question : {QStringLiteral("Word Instances"), QStringLiteral("Overwrite?")}) {
        const bool overwrites = question == QLatin1String("Overwrite?");
        const clsProcessListScope processes([&] { return overwrites ? QStringList() : QStringList("soffice.bin"); });
        QFile document(path("out/Claim1.doc"));
        if (overwrites) {
            ASSERT_TRUE(document.open(QIODevice::WriteOnly));
            document.write("old");
            document.close();
        }
        bool asked = false, pressed = false;
        EXPECT_EQ(0, run({}, [&] {
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal && !header().isEmpty() && !asked) {
                asked = true;
                Form->ExportPath = path("out");
                topLevel<frmMain>()->wordInstalled = [] { return true; };
                QTimer::singleShot(0, topLevel<frmMain>()->findChild<QAction *>("mnuExportToWord"), &QAction::trigger);
            } else if (modal && modal->objectName() == QLatin1String("frmExportToWord") && !pressed) {
                pressed = true;
                QTimer::singleShot(0, modal->findChild<QPushButton *>("cmdExport"), &QPushButton::click);
            } else if (modal && modal->windowTitle() == question) {
                std::raise(SIGTERM);
                return true;
            }
            return false;
        }));
        EXPECT_EQ(overwrites ? 3 : 0, document.size());
    }
}

TEST_F(Program, AnExportWithoutItsTemplatesEndsTheProgramAndKeepsTheClaim)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("out")));
    bool asked = false, pressed = false;
    QString text;
    EXPECT_EQ(1, run({}, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal && !header().isEmpty() && !asked) {
            asked = true;
            Form->ExportPath = path("out");
            auto *entry = topLevel<frmMain>()->findChild<QAction *>(QStringLiteral("mnuExportToWord"));
            QTimer::singleShot(0, entry, &QAction::trigger);
        } else if (modal && modal->objectName() == QLatin1String("frmExportToWord") && !pressed) {
            pressed = true;
            auto *button = modal->findChild<QPushButton *>(QStringLiteral("cmdExport"));
            QTimer::singleShot(0, button, &QPushButton::click);
        } else if (const frmMessageBox *box = messageBox()) {
            text = textOf(*box);
            // Another word processor may be running on the tester's machine.
            return !press(QStringLiteral("Word Instances")) && press(QStringLiteral("Velmor ZR3"));
        }
        return false;
    }));
    EXPECT_TRUE(text.startsWith(QStringLiteral("Run-time error '"))) << qPrintable(text);
    EXPECT_FALSE(QFile::exists(path("out/Claim1.doc")));
    const QStringList copies = recovered();
    ASSERT_EQ(1, copies.size());
    EXPECT_TRUE(text.endsWith(copies.first()));
}
